#include "app/commandline.h"
#include "app/devicelibraries.h"
#include "app/localconfig.h"
#include "app/messagebox.h"
#include "app/shell.h"
#include "app/timezonetext.h"
#include "commandline/commands.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

/// The start of the application before QML is loaded. The tour tests the window.
class TestStartUp : public QObject
{
    Q_OBJECT
private:
    /// Runs a start that ends with a message box. Returns the exit code, and the title and text of the box.
    static std::pair<int, QStringList> refusedStart(const CommandLine &commandLine)
    {
        QStringList texts;
        QTimer closer;
        connect(&closer, &QTimer::timeout, &closer, [&texts] {
            auto *box = qobject_cast<OMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            texts = {box->windowTitle(), box->findChild<QLabel *>("text")->text()};
            QTest::mouseClick(box->findChild<QPushButton *>(), Qt::LeftButton);
        });
        closer.start(10);
        Shell shell(commandLine);
        const std::optional<int> exitCode = shell.begin();
        return {exitCode.value_or(-1), texts};
    }

private Q_SLOTS:
    void cleanup()
    {
        // A refused start requests the end of the event loop. The request remains pending until a loop has
        // run.
        QTimer::singleShot(0, qApp, &QApplication::quit);
        QApplication::exec();
    }

    void textOfATimeZone_data()
    {
        const auto row = dataTable<int, QString>({"seconds", "text"});
        row("zero", 0, "UTC+00:00");
        row("+8", 28800, "UTC+08:00");
        row("+5:45", 20700, "UTC+05:45");
        row("-4", -14400, "UTC-4:00");
        row("-3:30", -12600, "UTC-3:30");
    }

    void textOfATimeZone()
    {
        QFETCH(int, seconds);
        QTEST(timeZoneText(seconds), "text");
    }

    void readsTheCommandLine_data()
    {
        const auto row =
            dataTable<QStringList, bool, QString, bool>({"arguments", "demo", "scene", "understood"});
        row("nothing", QStringList(), false, "office", true);
        row("scene", QStringList{"--demo", "fleet:20"}, true, "fleet:20", true);
        row("no demo", QStringList{"--no-demo"}, false, "office", true);
        row("option after demo", QStringList{"--demo", "--help"}, true, "office", true);
        row("unknown option", QStringList{"--frobnicate"}, false, "office", false);
        row("unexpected argument", QStringList{"office"}, false, "office", false);
    }

    void readsTheCommandLine()
    {
        QFETCH(QStringList, arguments);
        const CommandLine commandLine = CommandLine::parse(QStringList("ConfigTools") + arguments);
        QTEST(commandLine.demo, "demo");
        QTEST(commandLine.scene, "scene");
        QTEST(commandLine.error.isEmpty(), "understood");
    }

    /// The manual page and the completion of the shell have every option of the help.
    void optionsAreDocumented_data()
    {
        const auto row = dataTable<QString>({"file"});
        row("manual page", "configtools.1.in");
        row("completion", "completion.bash");
    }

    void optionsAreDocumented()
    {
        QFETCH(QString, file);
        const QString text = QString::fromUtf8(fileContents(PACKAGING_DIRECTORY "/" + file)).remove(u'\\');
        QVERIFY(!text.isEmpty());
        static const QRegularExpression pattern("--[a-z-]+");
        QRegularExpressionMatchIterator option = pattern.globalMatch(CommandLine::usage());
        QVERIFY(option.hasNext());
        while (option.hasNext()) {
            const QString name = option.next().captured();
            QVERIFY2(QRegularExpression(name + "\\b(?!-)").match(text).hasMatch(), qPrintable(name));
        }
    }

    /// The manual page has a section for each command, and the completion a line, with its options.
    void commandsAreDocumented_data()
    {
        const auto row = dataTable<QString>({"command"});
        for (const commandline::Command &command : commandline::commands())
            row(command.name.data(), command.name);
    }

    void commandsAreDocumented()
    {
        QFETCH(QString, command);
        QStringList expected;
        for (const QLatin1StringView option : commandline::findCommand(command)->options)
            expected.append(QString(option).prepend("--"));
        expected.sort();
        const auto optionsIn = [](const QString &text) {
            static const QRegularExpression pattern("(?<![a-z-])--[a-z-]+");
            QSet<QString> found;
            QRegularExpressionMatchIterator option = pattern.globalMatch(text);
            while (option.hasNext())
                found.insert(option.next().captured());
            QStringList sorted(found.cbegin(), found.cend());
            sorted.sort();
            return sorted;
        };
        const QString manual =
            QString::fromUtf8(fileContents(PACKAGING_DIRECTORY "/configtools.1.in")).remove(u'\\');
        const QRegularExpression section("\n\\.SS \"" + command + "\\b(?!-)(.*?)\n\\.S[SH] ",
                                         QRegularExpression::DotMatchesEverythingOption);
        QCOMPARE(optionsIn(section.match(manual).captured(1)), expected);

        const QString completion = QString::fromUtf8(fileContents(PACKAGING_DIRECTORY "/completion.bash"));
        const QRegularExpression options("\n +" + command + "\\) options='([^']*)' ;;\n");
        QCOMPARE(optionsIn(options.match(completion).captured(1)), expected);
        static const QRegularExpression commands("local commands='([^']*)'");
        QVERIFY(commands.match(completion).captured(1).split(u' ').contains(command));
    }

    void theCompletionIsAValidScript()
    {
        QProcess shell;
        shell.start("bash", {"-n", PACKAGING_DIRECTORY "/completion.bash"});
        QVERIFY(shell.waitForFinished());
        QVERIFY2(shell.exitCode() == 0, shell.readAllStandardError().constData());
    }

    void aSecondInstanceShowsAMessageAndEndsWith0()
    {
        const QTemporaryDir directory;
        CLocalConfig first(directory.path());
        QVERIFY(first.acquireInstanceLock());
        const auto [exitCode, texts] = refusedStart(CommandLine::parse({"ConfigTools", "--demo"}));
        QCOMPARE(exitCode, 0);
        QCOMPARE(texts, QStringList({"提示", "应用程序已经运行!"}));
    }

    void missingDeviceLibrariesAreExplained()
    {
        const QTemporaryDir folder;
        sdk::SdkLibraries libraries;
        QString error;
        QVERIFY(!bindDeviceLibraries(folder.path(), libraries, error)); // without a file there is no error
        QVERIFY(error.isEmpty());
        QFile file(folder.filePath(bindingFileName));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("[network]\nfile = absent.so\n");
        file.close();
        QVERIFY(bindDeviceLibraries(folder.path(), libraries, error));
        QVERIFY2(error.contains("absent.so") && error.contains("NetInit"), qPrintable(error));
        QVERIFY(!libraries.net);
    }

    void anInvalidSceneIsExplained()
    {
        const QString path = QTemporaryDir().filePath("scene.json");
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("cannot be opened: .*scene.json"));
        const auto [exitCode, texts] = refusedStart(CommandLine::parse({"ConfigTools", "--demo", path}));
        QCOMPARE(exitCode, 1);
        QVERIFY2(texts.value(1).contains("scene.json"), qPrintable(texts.join('\n')));
    }
};

QTEST_MAIN(TestStartUp)
#include "tst_startup.moc"
