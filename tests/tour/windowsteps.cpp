#include "app/languages.h"
#include "app/localconfig.h"
#include "tests/tour/driver.h"
#include "tests/tour/steps.h"

#include <QGuiApplication>
#include <QProcess>

namespace {

void walkTabs(Driver &driver)
{
    driver.click(QStringLiteral("tab1"));
    driver.report(QStringLiteral("tab1"), driver.text(QStringLiteral("upgradeStartButton")));
    driver.key(Qt::Key_5, Qt::ControlModifier);
    driver.report(QStringLiteral("tab4"), driver.text(QStringLiteral("batchCgiButton")));
    driver.key(Qt::Key_Tab, Qt::ControlModifier);
    driver.await(QStringLiteral("the tabs go round"),
                 [&] { return driver.find(QStringLiteral("deviceTable")) != nullptr; });
}

void walkMenus(Driver &driver)
{
    driver.click(QStringLiteral("menuButton"));
    driver.report(QStringLiteral("menu"), QStringLiteral("the menu"));
    driver.click(QStringLiteral("languageMenuItem"));
    driver.require(QStringLiteral("language_zh_CN"));
    const CLocalConfig &localConfig = *CLocalConfig::getinstance();
    for (const QString code : languageCodes) {
        const bool offered = driver.find(QStringLiteral("language_") + code) != nullptr;
        driver.check(offered == localConfig.hasTranslation(code),
                     QStringLiteral("languages are offered that have a translation: %1").arg(code));
    }
    driver.report(QStringLiteral("languages"), QStringLiteral("the languages that are there"));
    driver.key(Qt::Key_Escape);
    driver.key(Qt::Key_Escape);

    driver.click(QStringLiteral("menuButton"));
    driver.click(QStringLiteral("aboutItem"));
    driver.check(
        driver.text(QStringLiteral("versionText")).contains(CLocalConfig::getinstance()->getVersion()),
        QStringLiteral("the about box tells the version"));
    driver.report(QStringLiteral("about"), driver.text(QStringLiteral("versionText")));
    driver.key(Qt::Key_Escape);
}

void walkOperationsOfIPv6(Driver &driver)
{
    driver.click(QStringLiteral("ipv6Choice"));
    for (const QString &button : {QStringLiteral("initialiseButton"), QStringLiteral("batchModifyButton"),
                                  QStringLiteral("importButton"), QStringLiteral("exportButton"),
                                  QStringLiteral("addButton"), QStringLiteral("edit0")}) {
        driver.check(!driver.require(button)->isEnabled(),
                     QStringLiteral("\"%1\" is disabled for IPv6 devices").arg(button));
    }
    driver.check(driver.require(QStringLiteral("deleteButton"))->isEnabled(),
                 QStringLiteral("IPv6 devices can be deleted"));
    driver.hover(QStringLiteral("batchModifyButton"));
    driver.report(QStringLiteral("tool-tip"), driver.text(QStringLiteral("toolTip")));
    driver.click(QStringLiteral("ipv4Choice"));
}

void walkSize(Driver &driver)
{
    const QSize normal = driver.window()->size();
    driver.click(QStringLiteral("maximiseButton"));
    driver.await(QStringLiteral("the window is maximised"),
                 [&] { return driver.window()->width() > normal.width(); });
    driver.report(QStringLiteral("maximised"),
                  QStringLiteral("%1 × %2").arg(driver.window()->width()).arg(driver.window()->height()));
    driver.doubleClick(QStringLiteral("titleDragArea"));
    driver.await(QStringLiteral("the window has its size again"),
                 [&] { return driver.window()->size() == normal; });
}

} // namespace

void walkWindow(Driver &driver)
{
    walkTabs(driver);
    walkMenus(driver);
    walkOperationsOfIPv6(driver);
    walkSize(driver);
}

void walkSecondStart(Driver &driver, const QString &pictureFolder)
{
    QProcess second;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CONFIGTOOLS_TOUR_STAGE"), QStringLiteral("second"));
    second.setProcessEnvironment(environment);
    second.start(QCoreApplication::applicationFilePath(),
                 {CLocalConfig::getinstance()->getLanguage(), pictureFolder});
    driver.await(
        QStringLiteral("a second start ends"), [&] { return second.state() == QProcess::NotRunning; }, 30);
    driver.check(second.exitStatus() == QProcess::NormalExit && second.exitCode() == 0,
                 QStringLiteral("a second start ends with 0"));
    const QString said = QString::fromUtf8(second.readAllStandardOutput()).trimmed();
    driver.check(said.contains(QObject::tr("应用程序已经运行!")),
                 QStringLiteral("a second start says that the program runs: \"%1\"").arg(said));
    driver.report(QStringLiteral("second-start"), said);
}
