// ConfigTools LANGUAGE FOLDER [lab]: plays the tour in a language and saves its pictures in a folder. With
// "lab" it plays the main job on the devices of the network that it runs in (scripts/lab), without the
// simulated site.
//
// Several processes take part: one that watches, the program that is driven, a second start of it beside the
// first, and the one that the program starts in its place when its language was changed.

#include "app/localconfig.h"
#include "app/messagebox.h"
#include "app/shell.h"
#include "sdk/demo/demonetlibrary.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver.h"
#include "tests/tour/steps.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QQmlApplicationEngine>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const char *const stageVariable = "CONFIGTOOLS_TOUR_STAGE";
constexpr int minutes = 60000;

QtMessageHandler previousHandler = nullptr;
int warnings = 0;

/// Passes messages on and counts those that must not be: a warning fails the tour, unless the program gives
/// it by itself, of something odd that it has handled, as it does when a step offers it a file that is no
/// list.
void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool own = QLatin1StringView(context.category).startsWith(QLatin1String("configtools."));
    // There is no loudspeaker here. The toolkit says the second one where a list loses rows that it is just
    // making, the third one where a window that animates is exposed late, and goes on.
    const bool expected = message.startsWith(QLatin1String("PulseAudioService:")) ||
                          message.startsWith(QLatin1String("DelegateModel::cancel: index out range")) ||
                          message.startsWith(QLatin1String("QUnifiedTimer::stopAnimationDriver:"));
    if ((type == QtWarningMsg && !own && !expected) || type == QtCriticalMsg)
        ++warnings;
    previousHandler(type, context, message);
}

QString otherLanguage(const QString &language)
{
    return language == QLatin1String("zh_CN") ? u"en_US"_s : u"zh_CN"_s;
}

/// Written by the last process, for the one that watches.
QString resultFile(const QString &folder)
{
    return folder + u"/result.txt"_s;
}

QString restartFile(const QString &folder)
{
    return folder + u"/restarted.txt"_s;
}

void forgetEarlierRuns(const QString &stage, const QString &language)
{
    QFile::remove(QCoreApplication::applicationDirPath() + u"/LocalConfig.ini"_s);
    QDir(QCoreApplication::applicationDirPath() + u"/fav"_s).removeRecursively();
    QDir(QCoreApplication::applicationDirPath() + u"/snap"_s).removeRecursively();
    QFile::remove(QCoreApplication::applicationDirPath() + u"/cgicommands.json"_s);
    QFile::remove(QCoreApplication::applicationDirPath() + u"/notes-demo.json"_s);
    CLocalConfig localConfig(QCoreApplication::applicationDirPath());
    localConfig.setLanguage(language);
    localConfig.setColourScheme(u"light"_s); // whatever the desktop
    if (stage == QLatin1String("fleet"))
        localConfig.setSearchConfigPass(u"Installer-2024"_s);
    if (stage == QLatin1String("looks") || stage == QLatin1String("gallery"))
        localConfig.setSearchConfigPass(u"Office-2024"_s);
}

/// Starts the program as if for the first time, but for the stages that go on with what an earlier one has
/// left, and waits for its end.
bool runStage(const QString &stage, const QString &language, const QString &folder)
{
    if (!stage.startsWith(u"restored"))
        forgetEarlierRuns(stage, language);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(stageVariable), stage);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QCoreApplication::applicationFilePath(), {language, folder});
    return program.waitForFinished(22 * minutes) && program.exitStatus() == QProcess::NormalExit &&
           program.exitCode() == EXIT_SUCCESS;
}

/// Starts the program with a large site, then several times with the usual one, and waits for the one that
/// follows the last of these.
int watch(const QString &language, const QString &folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    if (!runStage(u"fleet"_s, language, folder + u"/fleet"_s) ||
        !runStage(u"keyboard"_s, language, folder + u"/keyboard"_s) ||
        !runStage(u"looks"_s, language, folder + u"/looks"_s) ||
        !runStage(u"accounts"_s, language, folder + u"/accounts"_s) ||
        !runStage(u"columns"_s, language, folder + u"/columns"_s) ||
        !runStage(u"restored"_s, language, folder + u"/restored"_s) ||
        !runStage(u"restoredagain"_s, language, folder + u"/restoredagain"_s) ||
        !runStage(u"gallery"_s, language, folder + u"/gallery"_s) ||
        !runStage(u"program"_s, language, folder)) {
        QTextStream(stdout) << "FAILED: the program did not end as it should" << Qt::endl;
        return EXIT_FAILURE;
    }
    const bool restarted = QTest::qWaitFor([&] { return QFile::exists(resultFile(folder)); }, minutes);
    const QByteArray result =
        restarted ? fileContents(resultFile(folder)) : "FAILED: the program did not start again";
    QTextStream(stdout) << result << Qt::endl;
    QFile::remove(restartFile(folder));
    QFile::remove(resultFile(folder));
    return result.startsWith("FAILED") ? EXIT_FAILURE : EXIT_SUCCESS;
}

/// A second start: says on its output what its message box says, and closes that.
void answerMessageBox(const QString &folder)
{
    auto *closer = new QTimer(qApp);
    QObject::connect(closer, &QTimer::timeout, closer, [folder] {
        auto *box = qobject_cast<OMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        QTextStream(stdout) << box->windowTitle() << ": " << box->findChild<QLabel *>(u"text"_s)->text()
                            << Qt::endl;
        box->grab().save(folder + u"/second-start-box.png"_s);
        QTest::mouseClick(box->findChild<QPushButton *>(), Qt::LeftButton);
    });
    closer->start(100);
}

void drive(Driver &driver, sdk::demo::DemoSite &site, const QString &language, const QString &folder)
{
    walkFirstSearch(driver);
    walkTable(driver);
    walkWindow(driver);
    walkConfiguration(driver, site);
    walkChannelNames(driver, site, folder + u"/details"_s);
    walkLive(driver, site, folder + u"/live"_s);
    walkCommands(driver, folder + u"/commands"_s);
    walkAdding(driver);
    walkSearchSettings(driver);
    walkDevices(driver);
    walkLists(driver, folder + u"/lists"_s);
    walkUpgrade(driver, site, folder + u"/upgrade"_s);
    walkSystem(driver, site);
    walkSecondStart(driver, folder);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.check(writeFile(restartFile(folder), "restarted"), u"the restart is noted"_s);
    walkLanguageChange(driver, otherLanguage(language));
}

void driveFleet(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    walkFleet(driver, site);
    walkBatches(driver, site, folder);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

/// A user without a mouse, from the first start on.
void driveKeyboard(Driver &driver, sdk::demo::DemoSite &site)
{
    walkFirstSearch(driver);
    walkKeyboard(driver, site);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

void driveLooks(Driver &driver)
{
    walkFirstSearch(driver);
    walkLooks(driver);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

void driveAccounts(Driver &driver, sdk::demo::DemoSite &site)
{
    walkFirstSearch(driver);
    walkDeviceAccounts(driver, site);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

/// One run of the program that keeps what the user arranges for the next one.
void driveColumns(Driver &driver, const QByteArray &stage)
{
    if (stage == "columns") {
        walkFirstSearch(driver);
        walkColumns(driver);
    } else if (stage == "restored") {
        walkRestored(driver);
    } else {
        walkRestoredAgain(driver);
    }
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

/// A user who looks at what the cameras show.
void driveGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    walkFirstSearch(driver);
    walkGallery(driver, site, folder + u"/pictures"_s);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

void driveLab(Driver &driver)
{
    walkLab(driver);
    walkLabBatches(driver);
    driver.check(warnings == 0, u"no warning was given"_s);
    driver.click(u"closeButton"_s);
}

/// The program after its restart: it has another language, and closes as any program does. Returns what it
/// saw.
QByteArray driveRestarted(Driver &driver, const QString &language, const QString &folder)
{
    const bool changed = CLocalConfig::getinstance()->getLanguage() == otherLanguage(language);
    driver.await(u"the search of the restarted program ends"_s,
                 [&] { return !driver.window()->property("searching").toBool(); });
    driver.window()->grabWindow().save(folder + u"/restarted.png"_s);
    const QString counter = driver.text(u"counterText"_s);
    const bool translated = counter.contains(u"台设备"_s) == (language != QLatin1String("zh_CN"));
    driver.click(u"closeButton"_s);
    return changed && translated
               ? "restarted.png: after the restart \"" + counter.toUtf8() + '"'
               : "FAILED: the restarted program is not in the other language: " + counter.toUtf8();
}

/// The program from its start to its end, driven on the way. The restarted one puts what it saw into
/// `result`.
int runProgram(const QString &language, const QString &folder, QByteArray &result)
{
    const bool isFleet = qgetenv(stageVariable) == "fleet";
    const bool isLab = qgetenv(stageVariable) == "lab";
    const bool isColumns =
        qgetenv(stageVariable) == "columns" || qgetenv(stageVariable).startsWith("restored");
    QStringList arguments = {u"ConfigTools"_s};
    if (!isLab)
        arguments.append(isFleet ? u"--demo=fleet:200"_s : u"--demo"_s);
    Shell shell(CommandLine::parse(arguments));
    if (const std::optional<int> exitCode = shell.begin())
        return *exitCode;
    auto *window = qobject_cast<QQuickWindow *>(shell.engine()->rootObjects().value(0));
    if (!window || !QTest::qWaitForWindowExposed(window)) {
        QTextStream(stdout) << "FAILED: no window opened" << Qt::endl;
        return EXIT_FAILURE;
    }
    Driver driver(window, folder);
    QTimer::singleShot(0, window, [&] {
        if (isLab) {
            driveLab(driver);
            return;
        }
        auto &site = dynamic_cast<sdk::demo::DemoNetLibrary &>(*shell.libraries().net).site();
        if (isFleet)
            driveFleet(driver, site, folder);
        else if (qgetenv(stageVariable) == "keyboard")
            driveKeyboard(driver, site);
        else if (qgetenv(stageVariable) == "looks")
            driveLooks(driver);
        else if (qgetenv(stageVariable) == "accounts")
            driveAccounts(driver, site);
        else if (isColumns)
            driveColumns(driver, qgetenv(stageVariable));
        else if (qgetenv(stageVariable) == "gallery")
            driveGallery(driver, site, folder);
        else if (QFile::exists(restartFile(folder)))
            result = driveRestarted(driver, language, folder);
        else
            drive(driver, site, language, folder);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    previousHandler = qInstallMessageHandler(countWarnings);
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool isLab = arguments.size() == 4 && arguments.at(3) == u"lab";
    if (arguments.size() != 3 && !isLab) {
        QTextStream(stderr) << "usage: ConfigTools LANGUAGE FOLDER [lab]\n";
        return 2;
    }
    const QString &language = arguments.at(1);
    const QString folder = QDir(arguments.at(2)).absolutePath();
    const QByteArray stage = qgetenv(stageVariable);
    if (stage.isEmpty() && isLab)
        return QDir(folder).removeRecursively() && QDir().mkpath(folder) &&
                       runStage(u"lab"_s, language, folder)
                   ? EXIT_SUCCESS
                   : EXIT_FAILURE;
    if (stage.isEmpty())
        return watch(language, folder);
    if (stage == "second")
        answerMessageBox(folder);

    QByteArray result;
    const int exitCode = runProgram(language, folder, result);
    if (!result.isEmpty())
        writeFile(resultFile(folder),
                  warnings == 0 && exitCode == 0 ? result : "FAILED: a warning was given");
    return exitCode;
}
