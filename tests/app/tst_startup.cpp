#include "app/commandline.h"
#include "app/localconfig.h"
#include "app/messagebox.h"
#include "app/publication.h"
#include "app/shell.h"
#include "app/timezonetext.h"
#include "cgi/cgiconfigmanage.h"
#include "device/batch/batchengine.h"
#include "device/devicefactory.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QTemporaryDir>
#include <QTest>
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
        QTest::addColumn<int>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0 << "UTC+00:00";
        QTest::newRow("+8") << 28800 << "UTC+08:00";
        QTest::newRow("+5:30") << 19800 << "UTC+05:30";
        QTest::newRow("+5:45") << 20700 << "UTC+05:45";
        QTest::newRow("+14") << 50400 << "UTC+14:00";
        QTest::newRow("-4") << -14400 << "UTC-4:00";
        QTest::newRow("-5") << -18000 << "UTC-5:00";
        QTest::newRow("-3:30") << -12600 << "UTC-3:30";
        QTest::newRow("-10") << -36000 << "UTC-10:00";
    }

    void textOfATimeZone()
    {
        QFETCH(int, seconds);
        QTEST(timeZoneText(seconds), "text");
    }

    void readsTheCommandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("demo");
        QTest::addColumn<QString>("scene");
        QTest::addColumn<bool>("understood");
        QTest::newRow("nothing") << QStringList() << false << "office" << true;
        QTest::newRow("demo") << QStringList{"--demo"} << true << "office" << true;
        QTest::newRow("scene") << QStringList{"--demo", "fleet:20"} << true << "fleet:20" << true;
        QTest::newRow("scene after =") << QStringList{"--demo=a b.json"} << true << "a b.json" << true;
        QTest::newRow("option behind demo") << QStringList{"--demo", "--help"} << true << "office" << true;
        QTest::newRow("unknown option") << QStringList{"--frobnicate"} << false << "office" << false;
        QTest::newRow("stray word") << QStringList{"office"} << false << "office" << false;
        QTest::newRow("two scenes") << QStringList{"--demo", "a", "b"} << true << "a" << false;
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

    void aBadSceneIsExplained_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("not JSON") << QByteArray("<scene/>");
        QTest::newRow("no devices") << QByteArray("{\"title\": \"x\"}");
    }

    void aBadSceneIsExplained()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir directory;
        const QString path = directory.filePath("scene.json");
        if (!content.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QFile::WriteOnly));
            file.write(content);
        }
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("cannot be opened: .*scene.json"));
        const auto [exitCode, texts] = refusedStart(CommandLine::parse({"ConfigTools", "--demo", path}));
        QCOMPARE(exitCode, 1);
        QVERIFY2(texts.value(1).contains("scene.json"), qPrintable(texts.join('\n')));
    }

    void documentsFindTheNativeTypes_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("CAuthor") << QByteArray("import Author 1.0\nCAuthor {}");
        QTest::newRow("DateTimeValidator")
            << QByteArray("import DateTimeValidator 1.0\nDateTimeValidator {}");
        QTest::newRow("VideoItem") << QByteArray("import VideoItem 1.0\nVideoItem {}");
        QTest::newRow("OVTreeModel") << QByteArray("import configtools\nOVTreeModel {}");
    }

    void documentsFindTheNativeTypes()
    {
        QFETCH(QByteArray, document);
        BatchEngine batchEngine(nullptr);
        QQmlApplicationEngine engine;
        engine.addImportPath("qrc:/qt/qml");
        publishToScene(engine, batchEngine, false);
        QQmlComponent component(&engine);
        component.setData(document, QUrl("qrc:/test.qml"));
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->metaObject()->className(), QTest::currentDataTag());
        CGIConfigManage::deleteInstance();
        CDeviceFactory::deleteInstance();
        CLocalConfig::deleteInstance();
    }

    void quitIsAskedForByTheFactory()
    {
        CDeviceFactory factory({});
        QTimer::singleShot(0, &factory, &CDeviceFactory::exitProgram);
        QCOMPARE(QApplication::exec(), 0);
    }
};

QTEST_MAIN(TestStartUp)
#include "tst_startup.moc"
