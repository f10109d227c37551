#include "app/languages.h"
#include "app/localconfig.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/steps.h"

#include <QGuiApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

void walkTabs(Driver &driver)
{
    driver.click(u"tab1"_s);
    driver.report(u"tab1"_s, driver.text(u"upgradeStartButton"_s));
    driver.key(Qt::Key_5, Qt::ControlModifier);
    driver.report(u"tab4"_s, driver.text(u"batchCgiButton"_s));
    driver.key(Qt::Key_Tab, Qt::ControlModifier);
    driver.await(u"Ctrl+Tab goes from the last tab to the first"_s,
                 [&] { return driver.find(u"deviceTable"_s) != nullptr; });
}

void walkMenus(Driver &driver)
{
    driver.click(u"menuButton"_s);
    driver.report(u"menu"_s, u"the menu"_s);
    driver.click(u"languageMenuItem"_s);
    driver.require(u"language_zh_CN"_s);
    const CLocalConfig &localConfig = *CLocalConfig::getinstance();
    for (const QString code : languageCodes) {
        const bool offered = driver.find(u"language_"_s + code) != nullptr;
        driver.check(offered == localConfig.hasTranslation(code),
                     u"a language is offered if it has a translation: %1"_s.arg(code));
    }
    driver.report(u"languages"_s, u"the available languages"_s);
    driver.key(Qt::Key_Escape);
    driver.key(Qt::Key_Escape);

    driver.click(u"menuButton"_s);
    driver.click(u"aboutItem"_s);
    driver.check(driver.text(u"versionText"_s).contains(CLocalConfig::getinstance()->getVersion()),
                 u"the about box shows the version"_s);
    driver.report(u"about"_s, driver.text(u"versionText"_s));
    driver.key(Qt::Key_Escape);
}

void walkOperationsOfIPv6(Driver &driver)
{
    driver.click(u"ipv6Choice"_s);
    for (const QString &button : {u"initialiseButton"_s, u"batchModifyButton"_s, u"importButton"_s,
                                  u"exportButton"_s, u"addButton"_s, u"edit0"_s}) {
        driver.check(!driver.require(button)->isEnabled(),
                     u"\"%1\" is disabled for IPv6 devices"_s.arg(button));
    }
    driver.check(driver.require(u"deleteButton"_s)->isEnabled(), u"IPv6 devices can be deleted"_s);
    driver.hover(u"batchModifyButton"_s);
    driver.report(u"tool-tip"_s, driver.text(u"toolTip"_s));
    driver.click(u"ipv4Choice"_s);
}

void walkSize(Driver &driver)
{
    const QSize normal = driver.window()->size();
    driver.click(u"maximiseButton"_s);
    driver.await(u"the window is maximised"_s, [&] { return driver.window()->width() > normal.width(); });
    driver.report(u"maximised"_s, u"%1 × %2"_s.arg(driver.window()->width()).arg(driver.window()->height()));
    driver.doubleClick(u"titleDragArea"_s);
    driver.await(u"the window has its size again"_s, [&] { return driver.window()->size() == normal; });
}

} // namespace

void walkWindow(Driver &driver)
{
    walkTabs(driver);
    walkMenus(driver);
    walkOperationsOfIPv6(driver);
    walkSize(driver);
}

void walkSecondStart(Driver &driver, const QString &imageFolder)
{
    QProcess second;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"CONFIGTOOLS_TOUR_STAGE"_s, u"second"_s);
    second.setProcessEnvironment(environment);
    second.start(QCoreApplication::applicationFilePath(),
                 {CLocalConfig::getinstance()->getLanguage(), imageFolder});
    driver.await(
        u"a second start ends"_s, [&] { return second.state() == QProcess::NotRunning; }, 30);
    driver.check(second.exitStatus() == QProcess::NormalExit && second.exitCode() == 0,
                 u"a second start ends with 0"_s);
    const QString output = QString::fromUtf8(second.readAllStandardOutput()).trimmed();
    driver.check(output.contains(QObject::tr("应用程序已经运行!")),
                 u"a second start reports that the application runs: \"%1\""_s.arg(output));
    driver.report(u"second-start"_s, output);
}
