// The names of a recorder's channels, and its details.
#include "sdk/camerablocks.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

const QString recorder = u"192.168.1.120:8800"_s;
const QString recorderMac = u"02:1a:c5:00:40:72"_s;
constexpr int nameItem = static_cast<int>(sdk::CameraItem::ChannelName);

QString troubleOf(const Driver &driver, int row)
{
    return driver.find(u"nameTrouble%1"_s.arg(row)) ? driver.text(u"nameTrouble%1"_s.arg(row)) : QString();
}

QString nameOf(const Driver &driver, int row)
{
    return driver.text(u"channelName%1"_s.arg(row));
}

bool hasKeyboard(const Driver &driver, int row)
{
    return driver.require(u"channelName%1"_s.arg(row))->hasActiveFocus();
}

void awaitLogin(const Driver &driver)
{
    driver.await(u"the device has responded"_s,
                 [&] { return driver.text(u"configState"_s) == translated("DeviceState", "已登录"); });
}

/// The number of names written to the recorder.
qsizetype writes(sdk::demo::DemoSite &site)
{
    qsizetype count = 0;
    for (const sdk::demo::RecordedRequest &request : site.requests().of(u"NetSetItem"_s))
        count += request.mac == recorderMac && request.request.value(u"item"_s).toInt() == nameItem ? 1 : 0;
    return count;
}

void openNames(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.fill(u"treeSearchField"_s, u"192.168.1.120"_s);
    driver.await(u"the recorder is found"_s, [&] { return driver.find(u"device_"_s + recorder) != nullptr; });
    driver.click(u"device_"_s + recorder);
    driver.require(u"encodeSaveButton"_s); // until the device has responded, clicks are held back
    awaitLogin(driver);
    driver.click(u"configTab2"_s);
    driver.require(u"nameTable"_s);
    awaitLogin(driver);
    driver.check(driver.require(u"nameTable"_s)->property("count").toInt() == 16,
                 u"every channel of the recorder has a row"_s);
    driver.check(nameOf(driver, 0) == u"大门", u"the first channel has its name"_s);
    driver.report(u"names"_s, nameOf(driver, 1));
}

/// Edits two names with the keyboard. One of them has too many bytes for the device.
void walkEditing(Driver &driver)
{
    driver.fill(u"channelName0"_s, u"正门"_s);
    driver.key(Qt::Key_Return);
    driver.await(u"Enter goes on to the next row"_s, [&] { return hasKeyboard(driver, 1); });
    driver.type(QString(90, u'库'));
    driver.key(Qt::Key_Tab);
    driver.await(u"so does Tab"_s, [&] { return hasKeyboard(driver, 2); });
    driver.type(u"x"_s);
    driver.key(Qt::Key_Escape);
    driver.check(nameOf(driver, 2) == u"停车场入口", u"Escape reverts the input"_s);
    driver.key(Qt::Key_Up);
    driver.await(u"and up"_s, [&] { return hasKeyboard(driver, 1); });
    driver.report(u"names-too-long"_s, troubleOf(driver, 1));
    driver.click(u"namesSaveButton"_s);
    driver.await(u"the name that is too long is shown"_s, [&] { return hasKeyboard(driver, 1); });
    driver.click(u"nameWay1"_s);
    driver.check(nameOf(driver, 1) == QString(85, u'库'), u"it is truncated between two characters"_s);

    driver.click(u"configTab0"_s);
    driver.report(u"names-leaving"_s, driver.text(u"messageText"_s));
    driver.click(u"cancelButton"_s);
    driver.await(u"the question is closed"_s, [&] { return !driver.find(u"messageText"_s); });
}

void walkSavingNames(Driver &driver, sdk::demo::DemoSite &site)
{
    const qsizetype before = writes(site);
    driver.click(u"namesSaveButton"_s);
    driver.await(u"the names are saved"_s, [&] {
        return writes(site) == before + 2 && !driver.find(u"nameChanged0"_s) &&
               !driver.find(u"nameChanged1"_s) && !driver.find(u"runningText"_s);
    });
    driver.report(u"names-saved"_s, driver.texts(u"toastText"_s).join(u' '));

    site.setFault(recorderMac, {.fault = sdk::demo::Fault::RefusesItem, .number = nameItem});
    driver.fill(u"channelName3"_s, u"Car park 2"_s);
    driver.click(u"namesSaveButton"_s);
    driver.await(u"the refusal is shown in its row"_s, [&] {
        return troubleOf(driver, 3) == translated("ChannelNameTrouble", "设备没有接受") &&
               !driver.find(u"runningText"_s);
    });
    driver.report(u"names-refused"_s, driver.text(u"namesNotice"_s));
    site.clearFault(recorderMac, sdk::demo::Fault::RefusesItem);

    driver.click(u"namesRefreshButton"_s);
    driver.click(u"okButton"_s); // discards the refused name
    driver.await(u"the device's own name is back"_s, [&] {
        return driver.find(u"channelName3"_s) && nameOf(driver, 3) == u"Car park, upper level";
    });
    driver.check(nameOf(driver, 0) == u"正门" && nameOf(driver, 1) == QString(85, u'库'),
                 u"the saved names are read back"_s);
    driver.click(u"configTab0"_s);
    driver.require(u"encodeSaveButton"_s);
    driver.fill(u"treeSearchField"_s, QString());
    driver.click(u"tab0"_s);
}

/// Exports the text of the open panel. An existing file is not overwritten without a question.
void exportDetails(Driver &driver, const QString &folder)
{
    const QString path = folder + u"/192.168.1.120_8800.txt"_s;
    const auto saidToast = [&] {
        return driver.texts(u"dialogNotice"_s).contains(translated("DeviceActions", "已导出到 %1").arg(path));
    };
    QDir().mkpath(folder);
    driver.click(u"detailExportButton"_s);
    driver.acceptFileBox(folder);
    driver.await(u"the details are written"_s, saidToast);
    const QByteArray written = fileContents(path);
    driver.check(written.contains(recorderMac.toLatin1()) && written.contains("554"),
                 u"the file has the values of the search and of the login"_s);
    driver.check(!written.contains("Office-2024"), u"and no password"_s);
    driver.report(u"detail-exported"_s, QFileInfo(path).fileName());

    driver.check(writeFile(path, "kept"), u"the file is replaced"_s);
    driver.click(u"detailExportButton"_s);
    driver.acceptFileBox(folder);
    driver.await(u"the user is asked"_s, [&] { return driver.text(u"messageText"_s).contains(path); });
    driver.await(u"the question has the keyboard"_s, [&] {
        const QQuickItem *item = driver.window()->activeFocusItem();
        return item && item->objectName() == u"cancelButton";
    });
    driver.key(Qt::Key_Escape);
    driver.await(u"the question is closed"_s, [&] { return !driver.find(u"messageText"_s); });
    driver.check(fileContents(path) == "kept", u"the file is not overwritten without confirmation"_s);
}

/// The details from the search, then from a login: searched, copied and exported.
void walkDetailPanel(Driver &driver, const QString &folder)
{
    const int row = Rows(driver).rowOf("ipport", recorder);
    QMetaObject::invokeMethod(driver.require(u"deviceTable"_s), "show", Q_ARG(QVariant, row));
    driver.click(u"detail%1"_s.arg(row));
    driver.report(u"detail-found"_s, driver.texts(u"detailValue"_s).join(u", "_s));
    driver.check(!driver.texts(u"detailValue"_s).contains(u"554"_s),
                 u"a search does not report every port"_s);
    driver.click(u"detailLoginButton"_s);
    driver.await(u"the login has reported the port"_s, [&] {
        driver.fill(u"detailSearchField"_s, u"RTSP"_s); // held back until the device has responded
        return driver.texts(u"detailValue"_s) == QStringList(u"554"_s);
    });
    driver.report(u"detail-search"_s, driver.texts(u"detailValue"_s).join(u", "_s));
    driver.hover(u"detailLine0"_s);
    driver.click(u"detailCopy0"_s);
    driver.check(QGuiApplication::clipboard()->text().endsWith(u": 554"_s), u"one line is copied"_s);
    driver.fill(u"detailSearchField"_s, u"nothing like it"_s);
    driver.report(u"detail-nothing"_s, driver.text(u"detailNothing"_s));
    driver.fill(u"detailSearchField"_s, QString());
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_End);
    driver.await(u"the last line is in view"_s, [&] {
        const QQuickItem *list = driver.require(u"detailList"_s);
        return list->hasActiveFocus() && list->property("atYEnd").toBool();
    });
    driver.report(u"detail-whole"_s, driver.texts(u"detailValue"_s).join(u", "_s));
    exportDetails(driver, folder);
    driver.click(u"okButton"_s);
    driver.check(QGuiApplication::clipboard()->text().contains(recorderMac), u"and all of them"_s);
    driver.check(!QGuiApplication::clipboard()->text().contains(u"Office-2024"_s), u"without the password"_s);
    driver.key(Qt::Key_Escape);
    driver.await(u"the panel is closed"_s, [&] { return !driver.find(u"detailList"_s); });
}

} // namespace

void walkChannelNames(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    openNames(driver);
    walkEditing(driver);
    walkSavingNames(driver, site);
    walkDetailPanel(driver, folder);
}
