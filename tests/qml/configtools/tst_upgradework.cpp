// The upgrade page: selecting the file, the question, and the notices at the end.
#include "device/batch/upgradebatches.h"
#include "device/models/devicetablemodel.h"
#include "tests/device/dh/upgradesite.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QJSValue>

using sdk::demo::Fault;

namespace {

const char *const scene =
    "    id: window\n"
    "    width: 1280; height: 720; visible: true\n"
    "    property var notices: []\n"
    "    UpgradeWork {\n"
    "        objectName: 'work'\n"
    "        batches: works; deviceFactory: factory; deviceTable: table\n"
    "        fileDialogs: files; upgradeBatches: upgrades; shown: true\n"
    "        onChanged: table.refresh()\n"
    "        onNotify: (message, severity) => window.notices = window.notices.concat([message])\n"
    "    }\n"
    "    UpgradeSummary { width: 900; batch: upgrades.last }\n";

} // namespace

/// A replacement of the file dialog that returns the test's path immediately.
class ChosenFile : public QObject
{
    Q_OBJECT
public:
    QString path;

    Q_INVOKABLE void chooseFile(const QString & /*title*/, const QStringList & /*nameFilters*/,
                                const QJSValue &chosen) const
    {
        chosen.call({path});
    }
};

class TestUpgradeWork : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<UpgradeSite> m_site;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<UpgradeBatches> m_upgrades;
    std::unique_ptr<DeviceTableModel> m_table;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    ChosenFile m_file;

    [[nodiscard]] QObject *object(const QString &name) const { return m_window->findChild<QObject *>(name); }
    [[nodiscard]] QStringList notices() const { return m_window->property("notices").toStringList(); }
    [[nodiscard]] QString summary() const { return object("upgradeSummary")->property("text").toString(); }
    void call(const char *function) const { QMetaObject::invokeMethod(object("work"), function); }
    void awaitOpened(const QString &dialog) const
    {
        QTRY_VERIFY(object(dialog) && object(dialog)->property("opened").toBool());
    }
    void accept(const QString &dialog) const
    {
        awaitOpened(dialog);
        QVERIFY(QMetaObject::invokeMethod(object(dialog), "accept"));
    }
    void passUntilEnd() const
    {
        QVERIFY(m_site->passUntil(
            [this] { return !m_batches->isRunning() && !m_site->factory->hasDeviceUpgrading(); }));
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<UpgradeSite>(3);
        m_batches = std::make_unique<Batches>(*m_site->factory, *m_site->engine, [] { return 8; });
        m_upgrades = std::make_unique<UpgradeBatches>(*m_site->factory, *m_batches, [] { return 4; });
        m_table = std::make_unique<DeviceTableModel>();
        m_table->setDeviceFactory(m_site->factory.get());
        m_table->refresh();
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene,
                             {{"factory", m_site->factory.get()},
                              {"works", m_batches.get()},
                              {"upgrades", m_upgrades.get()},
                              {"table", m_table.get()},
                              {"files", &m_file}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_table.reset();
        m_upgrades.reset();
        m_batches.reset();
        m_site.reset();
    }

    void tickedDevicesAreUpgraded()
    {
        m_site->site->setFault(m_site->mac(1), {Fault::UpgradeFailsAt, 50});
        call("startChecked");
        QCOMPARE(notices(), QStringList("请选择一台设备"));
        m_table->setAllChecked(true);
        m_file.path = m_site->file();
        call("chooseFileForChecked");
        call("startChecked");
        awaitOpened("upgradePreview");
        m_table->setAllChecked(false); // the devices of the question are upgraded
        accept("upgradePreview");
        QTRY_VERIFY(m_batches->isRunning());
        QVERIFY(m_site->passUntil([this] { return m_table->get(0).value("upgrade").toInt() > 0; }));
        passUntilEnd();
        QCOMPARE(summary(), "升级：3 / 3  ·  2 台设备成功，1 台设备失败");
        QCOMPARE(notices().last(), "1 台设备未升级成功，请查看结果");
        QCOMPARE(m_table->get(0).value("upgradetext").toString(), "升级成功：2.840.1 → 2.900.0");

        // Rows that the filter hides are retried too.
        m_site->site->clearFault(m_site->mac(1), Fault::UpgradeFailsAt);
        m_table->setSearchText("nothing");
        call("retry");
        accept("upgradePreview");
        QTRY_VERIFY(m_batches->isRunning());
        passUntilEnd();
        QCOMPARE(notices().last(), "1 台设备升级成功");
        call("retry");
        QCOMPARE(notices().last(), "没有可以重试的设备");
    }

    void noUpgradeStartsWithoutAFile()
    {
        m_table->setAllChecked(true);
        m_file.path = m_site->file("BRELM-FIRMWARE 1\nversion");
        call("chooseFileForChecked");
        QCOMPARE(notices(), QStringList("firmware.bin：升级文件已损坏"));
        call("startChecked");
        awaitOpened("upgradePreview");
        QVERIFY(!object("upgradePreview")->property("okEnabled").toBool());
    }
};

QTEST_MAIN(TestUpgradeWork)
#include "tst_upgradework.moc"
