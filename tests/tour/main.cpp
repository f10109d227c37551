// ConfigTools LANGUAGE FOLDER [STAGE...]: plays the tour, or these stages of it, in a language and saves the
// images of each stage in FOLDER/STAGE. Two stages are not part of the tour: "lab" runs on the devices of the
// current network (scripts/lab), without the simulated site, and "soak" repeats its work for hours
// (scripts/soak).
//
// ConfigTools --check-stages STAGE...: fails unless these are all stages of the tour.
//
// Several processes take part: the supervisor, the driven application, a second instance of it, and the
// instance that replaces the application after a change of the language or on opening the demo site.

#include "app/localconfig.h"
#include "app/messagebox.h"
#include "app/shell.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demosite.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/timedapplication.h"
#include "tests/tour/stages.h"
#include "tests/tour/steps.h"
#include "tests/tour/users/usersteps.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QQmlApplicationEngine>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const char *const stageVariable = "CONFIGTOOLS_TOUR_STAGE";
const char *const folderVariable = "CONFIGTOOLS_TOUR_FOLDER"; // for the process of the demo site
const QByteArray demoSiteStage = "demosite";                  // started by another stage
constexpr int minutes = 60000;

QtMessageHandler previousHandler = nullptr;
int warnings = 0;

/// Forwards messages and counts faults. A warning fails the tour, except warnings of the application itself,
/// such as that about an invalid list file.
void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool own = QLatin1StringView(context.category).startsWith(QLatin1String("configtools."));
    // There is no sound output. Qt emits the second message when a list loses rows that are being created,
    // and the third one when an animating window is exposed late. Both are harmless.
    const bool expected = message.startsWith(QLatin1String("PulseAudioService:")) ||
                          message.startsWith(QLatin1String("DelegateModel::cancel: index out range")) ||
                          message.startsWith(QLatin1String("QUnifiedTimer::stopAnimationDriver:"));
    if ((type == QtWarningMsg && !own && !expected) || type == QtCriticalMsg)
        ++warnings;
    previousHandler(type, context, message);
}

/// Written by the last process for the supervisor.
QString resultFile(const QString &folder)
{
    return folder + u"/result.txt"_s;
}

void removeEarlierSettings(const QString &stage, const QString &language)
{
    QFile::remove(QCoreApplication::applicationDirPath() + u"/LocalConfig.ini"_s);
    QDir(QCoreApplication::applicationDirPath() + u"/fav"_s).removeRecursively();
    QDir(QCoreApplication::applicationDirPath() + u"/snap"_s).removeRecursively();
    QFile::remove(QCoreApplication::applicationDirPath() + u"/cgicommands.json"_s);
    QFile::remove(QCoreApplication::applicationDirPath() + u"/notes-demo.json"_s);
    QDir folder(QCoreApplication::applicationDirPath());
    for (const QFileInfo &file : folder.entryInfoList({u"site*"_s}, QDir::Files | QDir::Dirs))
        file.isDir() ? QDir(file.filePath()).removeRecursively() : QFile::remove(file.filePath());
    CLocalConfig localConfig(QCoreApplication::applicationDirPath());
    localConfig.setLanguage(language);
    localConfig.setColourScheme(u"light"_s); // regardless of the desktop
    if (const Stage *known = stageOfTour(stage); known && !known->password.isEmpty())
        localConfig.setSearchConfigPass(known->password);
}

/// Waits until the replacing process has written its result and has ended. Returns the result.
QByteArray resultOfNextProcess(const QString &folder)
{
    QByteArray result;
    const bool ended = QTest::qWaitFor(
        [&] {
            // The first line is the process ID. The link to the executable disappears when the process ends.
            result = fileContents(resultFile(folder));
            const QByteArray process = result.left(result.indexOf('\n'));
            return !process.isEmpty() &&
                   QFile::symLinkTarget(u"/proc/"_s + QString::fromLatin1(process) + u"/exe"_s).isEmpty();
        },
        minutes);
    QFile::remove(resultFile(folder));
    return ended ? result.mid(result.indexOf('\n') + 1) : "FAILED: the application did not start again";
}

/// Starts the application and waits for its end. Its settings are removed before, except for stages that
/// continue an earlier one.
bool runStage(const QString &stage, const QString &language, const QString &folder)
{
    const Stage *known = stageOfTour(stage);
    if (!known || !known->continues)
        removeEarlierSettings(stage, language);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(stageVariable), stage);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QCoreApplication::applicationFilePath(), {language, folder});
    return program.waitForFinished((known ? known->minutes : Stage().minutes) * minutes) &&
           program.exitStatus() == QProcess::NormalExit && program.exitCode() == EXIT_SUCCESS;
}

/// True if the process that replaced the application has succeeded.
bool followed(const QString &folder)
{
    const QByteArray result = resultOfNextProcess(folder);
    QTextStream(stdout) << result << Qt::endl;
    return !result.startsWith("FAILED");
}

/// Plays a stage and prints its duration. Its images are in `folder`.
bool playStage(const QString &stage, const QString &language, const QString &folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    QElapsedTimer timer;
    timer.start();
    const Stage *known = stageOfTour(stage);
    const bool isReplaced = known && known->isReplaced;
    const bool succeeded = runStage(stage, language, folder) && (!isReplaced || followed(folder));
    if (succeeded)
        QTextStream(stdout) << "Stage " << stage << ": " << timer.elapsed() / 1000 << " s" << Qt::endl;
    else
        QTextStream(stdout) << "FAILED: stage " << stage << " failed" << Qt::endl;
    return succeeded;
}

/// Plays stages until one fails.
int watch(const QStringList &stages, const QString &language, const QString &folder)
{
    const bool succeeded = std::ranges::all_of(
        stages, [&](const QString &stage) { return playStage(stage, language, folder + u'/' + stage); });
    return succeeded ? EXIT_SUCCESS : EXIT_FAILURE;
}

QStringList namesOfStages()
{
    QStringList names;
    for (const Stage &stage : stagesOfTour())
        names.append(stage.name);
    return names;
}

/// The tests of the build list the stages again, divided into runs that take place in parallel.
int checkStages(QStringList stages)
{
    QStringList expected = namesOfStages();
    stages.sort();
    expected.sort();
    if (stages == expected)
        return EXIT_SUCCESS;
    QTextStream(stderr) << "These stages are played: " << stages.join(u' ')
                        << "\nThe tour has these stages: " << expected.join(u' ') << Qt::endl;
    return EXIT_FAILURE;
}

/// In a second instance: prints the text of its message box and closes it.
void closeMessageBox(const QString &folder)
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

void driveStage(Driver &driver, sdk::demo::DemoSite *site, const Stage &stage)
{
    stage.drive(driver, site);
    driver.check(warnings == 0, u"no warning was logged"_s);
    if (stage.leave)
        stage.leave(driver);
    else
        driver.click(u"closeButton"_s);
}

void driveLab(Driver &driver)
{
    walkLab(driver);
    walkLabBatches(driver);
    driver.check(warnings == 0, u"no warning was logged"_s);
    driver.click(u"closeButton"_s);
}

/// Checks the language of the restarted application and closes it. Returns the result.
QByteArray driveRestarted(Driver &driver, const QString &language, const QString &folder)
{
    const bool changed = CLocalConfig::getinstance()->getLanguage() == otherLanguage(language);
    awaitSearchEnd(driver);
    driver.window()->grabWindow().save(folder + u"/restarted.png"_s);
    const QString counter = driver.text(u"counterText"_s);
    const bool translated = counter.contains(u"台设备"_s) == (language != QLatin1String("zh_CN"));
    driver.click(u"closeButton"_s);
    return changed && translated
               ? "restarted.png: after the restart \"" + counter.toUtf8() + '"'
               : "FAILED: the restarted application is not in the other language: " + counter.toUtf8();
}

/// Checks the demo site that has replaced the application. Returns the result.
QByteArray driveDemoSite(Driver &driver)
{
    awaitSearchEnd(driver);
    const QString remark = driver.text(u"titleRemark"_s);
    const int devices = driver.text(u"counterNumber"_s).toInt();
    driver.report(u"demo-site"_s, remark);
    driver.click(u"closeButton"_s);
    // The window shows the account of the devices.
    return devices > 0 && remark.contains(u"Office-2024"_s)
               ? "the demo site: " + remark.toUtf8()
               : "FAILED: the demo site does not show devices and their account: " + remark.toUtf8();
}

/// The application's arguments for a stage.
QStringList argumentsFor(const QByteArray &stage, const QString &folder)
{
    QStringList arguments = {u"ConfigTools"_s};
    if (stage == demoSiteStage)
        arguments.append(u"--demo=office"_s);
    const Stage *known = stageOfTour(QString::fromLatin1(stage));
    if (known && !known->scene.isEmpty())
        arguments.append(u"--demo="_s +
                         (known->scene == emptyScene() ? writeEmptyScene(folder) : known->scene));
    return arguments;
}

/// Runs the application and drives it. `result` is set by an instance that has replaced another one.
int runProgram(const QByteArray &stage, const QString &language, const QString &folder, QByteArray &result)
{
    Shell shell(CommandLine::parse(argumentsFor(stage, folder)));
    if (const std::optional<int> exitCode = shell.begin())
        return *exitCode;
    auto *window = qobject_cast<QQuickWindow *>(shell.engine()->rootObjects().value(0));
    if (!window || !QTest::qWaitForWindowExposed(window)) {
        QTextStream(stdout) << "FAILED: no window opened" << Qt::endl;
        return EXIT_FAILURE;
    }
    Driver driver(window, folder);
    QTimer::singleShot(0, window, [&] {
        const auto library = std::dynamic_pointer_cast<sdk::demo::DemoNetLibrary>(shell.libraries().net);
        auto *site = library ? dynamic_cast<sdk::demo::DemoSite *>(&library->site()) : nullptr;
        if (stage == "lab")
            driveLab(driver);
        else if (stage == demoSiteStage)
            result = driveDemoSite(driver);
        else if (QFile::exists(restartFile(folder)))
            result = driveRestarted(driver, language, folder);
        else if (const Stage *known = stageOfTour(QString::fromLatin1(stage)))
            driveStage(driver, site, *known);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    previousHandler = qInstallMessageHandler(countWarnings);
    Shell::prepareApplication();
    TimedApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    QByteArray stage = qgetenv(stageVariable);
    if (arguments.size() == 2 && arguments.at(1) == u"--demo") {
        stage = demoSiteStage;
        arguments = {arguments.at(0), QString(), qEnvironmentVariable(folderVariable)};
    }
    if (arguments.value(1) == u"--check-stages")
        return checkStages(arguments.sliced(2));
    if (arguments.size() < 3) {
        QTextStream(stderr) << "usage: ConfigTools LANGUAGE FOLDER [STAGE...]\n";
        return 2;
    }
    const QString &language = arguments.at(1);
    const QString folder = QDir(arguments.at(2)).absolutePath();
    if (stage.isEmpty())
        return watch(arguments.size() == 3 ? namesOfStages() : arguments.sliced(3), language, folder);
    if (stage == "second")
        closeMessageBox(folder);
    qputenv(folderVariable, folder.toLocal8Bit());
    QDir().mkpath(folder);

    QByteArray result;
    const int exitCode = runProgram(stage, language, folder, result);
    const bool isFine = warnings == 0 && exitCode == 0;
    if (!result.isEmpty())
        writeFile(resultFile(folder), QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
                                          (isFine ? result : "FAILED: a warning was logged"));
    return warnings == 0 ? exitCode : EXIT_FAILURE;
}
