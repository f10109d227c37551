#include "app/commandline.h"
#include "app/localconfig.h"
#include "app/shell.h"
#include "cgi/cgiconfigmanage.h"
#include "device/store/devicenotes.h"
#include "device/store/devicerow.h"
#include "favourites/author.h"
#include "files/applicationfolders.h"
#include "qml/configtools/programfolders.h"
#include "tests/files/filecontents.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QProcessEnvironment>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

namespace {

constexpr const char *installedOption = "--installed";

/// Starts the application on the demo site and stores a file of each kind. Prints a string of the window.
int runInstalledCopy(int argc, char **argv)
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    CommandLine commandLine;
    commandLine.demo = true;
    Shell shell(commandLine);
    if (const std::optional<int> exitCode = shell.begin())
        return *exitCode;
    CLocalConfig::getinstance()->setSearchConfigUsername(QStringLiteral("root"));
    CGIConfigManage::getinstance()->rememberCommand(QStringLiteral("/cgi-bin/a"));
    auto *notes = shell.engine()
                      ->rootContext()
                      ->contextProperty(QStringLiteral("DeviceNotesApi"))
                      .value<DeviceNotes *>();
    const QString problem =
        notes->setNote({{DeviceRowKey::mac, QStringLiteral("00:11:22:33:44:55")}}, QStringLiteral("gate"));
    CAuthor author;
    author.saveTextAsJson(ProgramFolders().favourites(), QStringLiteral("0"), QStringLiteral("10.0.0.1"),
                          QStringLiteral("80"), QStringLiteral("admin"), QString(), QString());
    QTextStream(stdout) << problem << QCoreApplication::translate("QObject", "提示");
    return 0;
}

/// Relative paths of the files in a folder and in its subfolders, sorted.
QStringList filesIn(const QString &folder)
{
    QStringList files;
    QDirIterator file(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext())
        files.append(QDir(folder).relativeFilePath(file.next()));
    files.sort();
    return files;
}

} // namespace

/// A copy of the application that is marked as installed, started by a user in another folder.
class TestInstalledCopy : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everythingIsStoredInTheFoldersOfTheUser()
    {
        const QTemporaryDir root;
        for (const char *folder : {"program/language", "home", "work", "runtime"})
            QVERIFY(QDir(root.path()).mkpath(folder));
        QVERIFY(QFile::setPermissions(root.filePath("runtime"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const QString program = root.filePath("program/ConfigTools");
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QVERIFY(QFile::copy(TRANSLATION, root.filePath("program/language/en_US.qm")));
        QVERIFY(writeFile(root.filePath("program/") + installedMarkName, ""));
        const QStringList installed = filesIn(root.filePath("program"));

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.remove(variable);
        environment.insert("HOME", root.filePath("home"));
        environment.insert("XDG_CACHE_HOME", root.filePath("cache"));
        environment.insert("XDG_RUNTIME_DIR", root.filePath("runtime"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(root.filePath("work"));
        process.start(program, {installedOption});
        QVERIFY(process.waitForFinished(60'000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), "Notice");

        QCOMPARE(filesIn(root.filePath("program")), installed);
        QCOMPARE(filesIn(root.filePath("work")), QStringList());
        QCOMPARE(filesIn(root.filePath("home")), QStringList({".config/configtools/LocalConfig.ini",
                                                              ".local/share/configtools/cgicommands.json",
                                                              ".local/share/configtools/fav/10.0.0.1_80.json",
                                                              ".local/share/configtools/notes-demo.json"}));
    }
};

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], installedOption) == 0)
        return runInstalledCopy(argc, argv);
    QCoreApplication application(argc, argv);
    TestInstalledCopy test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_installedcopy.moc"
