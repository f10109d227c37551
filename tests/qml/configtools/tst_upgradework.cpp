#include "tests/qml/configtools/qmlscene.h"
// What the upgrade page does with its devices, with a factory that does nothing but remember.
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

namespace {

const char *const scene =
    "import QtQuick\n"
    "import QtQuick.Templates as T\n"
    "import configtools\n"
    "T.ApplicationWindow {\n"
    "    id: window\n"
    "    width: 1280; height: 720; visible: true\n"
    "    property string said\n"
    "    property bool ipv6: false\n"
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
    "    }\n"
    "    UpgradeToolBar {\n"
    "        objectName: 'toolBar'\n"
    "        x: Theme.pageMargin; width: window.width - 2 * x; height: Theme.toolBarHeight\n"
    "        running: false; ipv6: window.ipv6\n"
    "        onIpv6Chosen: ipv6 => window.ipv6 = ipv6\n"
    "    }\n"
    "}\n";

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

    void theListOfIpv6Devices_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"zh_CN", "en_US"})
            QTest::newRow(language) << QString(language);
    }

    void theListOfIpv6Devices()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(LANGUAGE_FOLDER "/%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        m_engine.retranslate();
        m_window->setProperty("ipv6", false);
        auto *choice = item("upgradeIpv6Choice");
        auto *search = item("upgradeSearchField");
        const auto end = [](const QQuickItem *of) {
            return of->mapToScene(QPointF(of->width(), 0)).x();
        };
        QTRY_COMPARE(item("upgradeTemplateButton")->property("text").toString(),
                     QCoreApplication::translate("UpgradeToolBar", "打开模板"));
        const auto *toolBar = item("toolBar");
        QTRY_VERIFY(end(search) <= end(toolBar)); // the layout has settled
        QVERIFY(end(item("upgradeTemplateButton")) < item("upgradeIpv4Choice")->mapToScene(QPointF()).x());
        QVERIFY(end(choice) < search->mapToScene(QPointF()).x());
        const QPointF middle(choice->width() / 2, choice->height() / 2);
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, choice->mapToScene(middle).toPoint());
        QTRY_VERIFY(m_window->property("ipv6").toBool());
        QCoreApplication::removeTranslator(&translator);
        m_engine.retranslate();
    }

private:
    [[nodiscard]] QObject *object(const QString &name) const { return m_window->findChild<QObject *>(name); }
    [[nodiscard]] QString said() const { return m_window->property("said").toString(); }

    [[nodiscard]] QQuickItem *item(const QString &name) const
    {
        QList<QQuickItem *> items = {m_window->contentItem()};
        while (!items.isEmpty()) {
            QQuickItem *next = items.takeLast();
            if (next->objectName() == name)
                return next;
            items += next->childItems();
        }
        return nullptr;
    }

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
