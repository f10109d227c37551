#include "app/commandline.h"
#include "app/devicelibraries.h"
#include "app/localconfig.h"
#include "app/messagebox.h"
#include "app/shell.h"
#include "app/timezonetext.h"
#include "tests/datatable.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

/// What start-up decides before there is a scene. The scene itself is walked by the tour.
class TestStartUp : public QObject
{
    Q_OBJECT
private:
    /// Runs a start-up that is to end with a message box. Returns the exit code and the texts of the box.
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
        // A refused start has told the event loop to end, and that word outlives it until a loop has begun.
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
        row("option behind demo", QStringList{"--demo", "--help"}, true, "office", true);
        row("unknown option", QStringList{"--frobnicate"}, false, "office", false);
        row("stray word", QStringList{"office"}, false, "office", false);
    }

    void readsTheCommandLine()
    {
        QFETCH(QStringList, arguments);
        const CommandLine commandLine = CommandLine::parse(QStringList("ConfigTools") + arguments);
        QTEST(commandLine.demo, "demo");
        QTEST(commandLine.scene, "scene");
        QTEST(commandLine.error.isEmpty(), "understood");
    }

    void aSecondInstanceSaysSoAndEndsWith0()
    {
        const QTemporaryDir directory;
        CLocalConfig first(directory.path());
        QVERIFY(!first.anotherInstanceRuns());
        const auto [exitCode, texts] = refusedStart(CommandLine::parse({"ConfigTools", "--demo"}));
        QCOMPARE(exitCode, 0);
        QCOMPARE(texts, QStringList({"提示", "应用程序已经运行!"}));
    }

    void missingDeviceLibrariesAreExplained()
    {
        const QTemporaryDir folder;
        sdk::SdkLibraries libraries;
        QString complaint;
        QVERIFY(!bindDeviceLibraries(folder.path(), libraries, complaint)); // no file, no complaint
        QVERIFY(complaint.isEmpty());
        QFile file(folder.filePath(bindingFileName));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("[network]\nfile = absent.so\n");
        file.close();
        QVERIFY(bindDeviceLibraries(folder.path(), libraries, complaint));
        QVERIFY2(complaint.contains("absent.so") && complaint.contains("NetInit"), qPrintable(complaint));
        QVERIFY(!libraries.net);
    }

    void aBadSceneIsExplained()
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
