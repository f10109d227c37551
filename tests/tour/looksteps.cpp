// The dark theme of the pages and dialogs that can be opened without changing a device.
#include "app/localconfig.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/steps.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const QString recorder = u"192.168.1.120:8800"_s;

bool isDark(const Driver &driver)
{
    return driver.window()->color().lightness() < 128;
}

void choose(const Driver &driver, const QString &choice)
{
    driver.click(u"menuButton"_s);
    driver.click(u"coloursMenuItem"_s);
    driver.click(u"colours_"_s + choice);
    driver.await(u"the menu is closed"_s, [&] { return !driver.find(u"coloursMenuItem"_s); });
}

/// Changes the colours of the desktop.
void paintDesktop(const QColor &windows, const QColor &text)
{
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, windows);
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);
}

void walkChoice(Driver &driver)
{
    const QPalette before = QGuiApplication::palette();
    driver.check(!isDark(driver), u"the window is light"_s);
    choose(driver, u"desktop"_s);
    paintDesktop(Qt::black, Qt::white);
    driver.check(isDark(driver), u"the window follows the desktop immediately"_s);
    QApplication::setPalette(before);
    driver.check(!isDark(driver), u"and back"_s);

    choose(driver, u"dark"_s);
    driver.await(u"the window is dark"_s, [&] { return isDark(driver); });
    driver.check(CLocalConfig::getinstance()->colourScheme() == u"dark", u"the choice is kept"_s);
    driver.click(u"menuButton"_s);
    driver.click(u"coloursMenuItem"_s);
    driver.require(u"colours_dark"_s);
    driver.report(u"colours"_s, u"the choice of colours"_s);
    driver.key(Qt::Key_Escape);
    driver.key(Qt::Key_Escape);
}

/// Opens a dialog, saves its image and closes it.
void showDialog(Driver &driver, const QString &button, const QString &sign, const QString &step)
{
    driver.click(button);
    driver.require(sign);
    driver.report(step, u"\"%1\" opens it"_s.arg(button));
    driver.key(Qt::Key_Escape);
    driver.await(u"the dialog is closed"_s, [&] { return !driver.find(sign); });
}

void walkDevicePage(Driver &driver)
{
    for (const QString &row : {u"check1"_s, u"check3"_s, u"check5"_s})
        driver.click(row);
    driver.click(u"row2"_s);
    driver.hover(u"row7"_s);
    driver.report(u"devices"_s, driver.text(u"selectedCount"_s));
    showDialog(driver, u"searchSettingsButton"_s, u"okButton"_s, u"search-settings"_s);
    showDialog(driver, u"exportButton"_s, u"okButton"_s, u"export"_s);
    showDialog(driver, u"edit2"_s, u"newStartField"_s, u"modify"_s);
    showDialog(driver, u"detail2"_s, u"detailList"_s, u"detail"_s);

    driver.click(u"batchModifyButton"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.100"_s);
    driver.require(u"planTable"_s);
    driver.report(u"modify-plan"_s, driver.text(u"planWarning"_s));
    driver.key(Qt::Key_Escape);
    driver.await(u"the dialog is closed"_s, [&] { return !driver.find(u"planTable"_s); });

    driver.click(u"addButton"_s);
    showDialog(driver, u"addIpItem"_s, u"portField"_s, u"add"_s);
    driver.click(u"addButton"_s);
    showDialog(driver, u"addFavouriteItem"_s, u"favouriteTable"_s, u"favourites"_s);
    driver.click(u"menuButton"_s);
    showDialog(driver, u"aboutItem"_s, u"versionText"_s, u"about"_s);

    driver.click(u"checkAllBox"_s);
    driver.click(u"initialiseButton"_s);
    driver.require(u"initialiseTable"_s);
    driver.report(u"initialise"_s, u"devices without a password"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"firstPasswordField"_s, u"tour2024"_s);
    driver.report(u"first-password"_s, driver.text(u"uninitialisedCount"_s));
    driver.key(Qt::Key_Escape);
    driver.await(u"the dialog is closed"_s, [&] { return !driver.find(u"firstPasswordField"_s); });
    driver.key(Qt::Key_Escape);
    driver.await(u"the list is closed"_s, [&] { return !driver.find(u"initialiseTable"_s); });
}

void walkConfigurationPage(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.fill(u"treeSearchField"_s, recorder.section(u':', 0, 0));
    driver.click(u"device_"_s + recorder);
    driver.require(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.report(u"encode"_s, driver.text(u"configDevice"_s));
    driver.click(u"configTab1"_s);
    for (const QString &subject : {u"imageSubject0"_s, u"imageSubject1"_s, u"imageSubject2"_s}) {
        driver.click(subject);
        awaitConfigIdle(driver);
        driver.report(u"image"_s, subject);
    }
    driver.click(u"configTab2"_s);
    driver.require(u"nameTable"_s);
    awaitConfigIdle(driver);
    driver.report(u"names"_s, driver.text(u"channelName0"_s));
    showDialog(driver, u"namePatternButton"_s, u"namePreview"_s, u"name-pattern"_s);
    driver.click(u"configTab0"_s);
    driver.fill(u"treeSearchField"_s, QString());
}

void walkOtherPages(Driver &driver)
{
    driver.click(u"tab1"_s);
    driver.report(u"upgrade"_s, driver.text(u"upgradeStartButton"_s));
    driver.click(u"tab3"_s);
    driver.click(u"tick_IPC"_s);
    for (int panel = 0; panel < 6; ++panel) {
        driver.click(u"systemTab%1"_s.arg(panel));
        driver.report(u"system"_s, u"panel %1"_s.arg(panel));
    }
    driver.click(u"systemTab2"_s);
    showDialog(driver, u"rebootButton"_s, u"previewTable"_s, u"preview"_s);
    driver.click(u"tab4"_s);
    driver.report(u"commands"_s, driver.text(u"batchCgiButton"_s));
    driver.click(u"tab0"_s);
}

void walkLiveWindow(Driver &driver)
{
    Driver live(openLive(driver, recorder), driver.imageFolder() + u"/live"_s);
    live.await(
        u"the live view shows a frame"_s,
        [&] {
            const QQuickItem *video = live.find(u"liveVideo"_s);
            return video && video->property("hasFrame").toBool();
        },
        30);
    live.report(u"live"_s, live.text(u"liveTitle"_s));
    closeLive(driver, live);
}

} // namespace

void walkLooks(Driver &driver)
{
    walkChoice(driver);
    walkDevicePage(driver);
    walkConfigurationPage(driver);
    walkOtherPages(driver);
    walkLiveWindow(driver);
}
