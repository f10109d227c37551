// What the upgrade page does with its devices, with a factory that does nothing but remember.
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene = "    id: window\n"
                          "    width: 1280; height: 720; visible: true\n"
                          "    property string said\n"
                          "    property QtObject table: QtObject {\n"
                          "        readonly property int count: 0\n"
                          "        readonly property int checkedCount: 1\n"
                          "        function checkedMacs() { return ['a', 'b']; }\n"
                          "        function refreshDevice(identity) {}\n"
                          "    }\n"
                          "    property QtObject dialogs: QtObject {\n"
                          "        function chooseFile(title, filters, then) { then('/firmware.bin'); }\n"
                          "    }\n"
                          "    UpgradeWork {\n"
                          "        objectName: 'work'\n"
                          "        deviceFactory: factory; deviceTable: window.table\n"
                          "        fileDialogs: window.dialogs; shown: true\n"
                          "        onSaid: (message, kind) => window.said = message\n"
                          "    }\n"
                          "    UpgradeWorkbook {\n"
                          "        objectName: 'workbook'\n"
                          "        deviceFactory: factory; fileDialogs: window.dialogs\n"
                          "    }\n";

class UpgradeFactory : public QObject
{
    Q_OBJECT
public:
    QStringList started;
    QStringList refreshed;
    QVariantMap results; ///< by identity
    int successes = 0;   ///< of a document

    Q_INVOKABLE void setUpgradeFilePath(const QString &, const QString &, const QString &) {}
    Q_INVOKABLE void startUpgrade(const QString &, const QStringList &names) { started += names; }
    Q_INVOKABLE void startUpgradeByDocument(const QString &, const QStringList &) {}
    Q_INVOKABLE bool hasDeviceUpgrading() { return false; }
    Q_INVOKABLE void refreshDevices(const QString &, const QStringList &names) { refreshed += names; }
    Q_INVOKABLE QStringList upgradesToRetry(const QString &) { return {"a", "b"}; }
    Q_INVOKABLE QString upgradeDocumentResult(const QString &) { return "upgrades.xlsx"; }
    Q_INVOKABLE QVariantMap upgradeDocumentProgress(const QString &) { return {{"done", 1}, {"total", 2}}; }
    Q_INVOKABLE int upgradeDocumentSuccesses(const QString &) { return successes; }
    Q_INVOKABLE QVariantMap getDeviceDetail(const QString &, const QString &identity)
    {
        return {{"upgraderes", results.value(identity, -1)}, {"filepath", "/firmware.bin"}};
    }

Q_SIGNALS:
    void signalUpdateSchedule(int value);
    void signalUpdateScheduleUpgradeByDocument(const QString &fileName, int value);
    void signalShowUpgradeFinishTip();
};

} // namespace

class TestUpgradeWork : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_window = openScene(m_engine, scene, {{"factory", &m_factory}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void init()
    {
        m_factory.started.clear();
        m_factory.refreshed.clear();
        m_factory.results.clear();
        m_window->setProperty("said", QString());
    }

    void aDeviceThatIsTriedAgainCountsOnce()
    {
        m_factory.results = {{"a", 0}, {"b", 0}};
        run({"a", "b"});
        run({"b"}); // while a is at it
        Q_EMIT m_factory.signalShowUpgradeFinishTip();
        QCOMPARE(said(), QStringLiteral("2 台设备升级成功"));
        QCOMPARE(m_factory.refreshed, QStringList({"a", "b"}));
    }

    void aRetryReachesRowsThatAreHidden()
    {
        m_factory.results = {{"a", 22}, {"b", 22}};
        QMetaObject::invokeMethod(object("work"), "retry");
        QTRY_VERIFY(object("upgradeQuestion") && object("upgradeQuestion")->property("opened").toBool());
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_COMPARE(m_factory.started, QStringList({"a", "b"}));
        QTRY_VERIFY(!object("upgradeQuestion")->property("visible").toBool());
    }

    void aFileThatIsOfNoUseIsToldAtOnce()
    {
        QMetaObject::invokeMethod(object("work"), "chooseFileForChecked");
        QCOMPARE(said(), QString());
        m_factory.results = {{"b", 6}};
        QMetaObject::invokeMethod(object("work"), "chooseFileForChecked");
        QCOMPARE(said(), QStringLiteral("1 台设备不能用此文件升级，请查看结果"));
    }

    void aDocumentWithoutASuccessIsAnError()
    {
        for (const int successes : {0, 1}) {
            m_factory.successes = successes;
            QMetaObject::invokeMethod(object("workbook"), "start", Q_ARG(QVariant, "x"),
                                      Q_ARG(QVariant, QVariantList()));
            Q_EMIT m_factory.signalShowUpgradeFinishTip();
            QTRY_VERIFY(object("upgradeOutcome") && object("upgradeOutcome")->property("opened").toBool());
            QCOMPARE(object("upgradeOutcome")->property("kind").toInt(), successes == 0 ? 1 : 0);
            QTest::keyClick(m_window.get(), Qt::Key_Return);
            QTRY_VERIFY(!object("upgradeOutcome")->property("visible").toBool());
        }
    }

private:
    [[nodiscard]] QObject *object(const QString &name) const { return m_window->findChild<QObject *>(name); }
    [[nodiscard]] QString said() const { return m_window->property("said").toString(); }

    void run(const QStringList &names) const
    {
        QMetaObject::invokeMethod(object("work"), "run", Q_ARG(QVariant, names));
    }

    UpgradeFactory m_factory;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

QTEST_MAIN(TestUpgradeWork)
#include "tst_upgradework.moc"
