// Known devices over several searches of a simulated site, and site files.
#include "device/models/devicetablemodel.h"
#include "device/models/treemodel.h"
#include "device/sites/knowndevices.h"
#include "device/sites/sitefile.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"
#include "tests/files/filecontents.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <utility>

namespace {

const QString east = QStringLiteral("02:1a:c5:00:00:01");
const QString west = QStringLiteral("02:1a:c5:00:00:02");
const QString gate = QStringLiteral("02:1a:c5:00:00:03");

/// "last number of the MAC, presence", with "+" if the row can be checked. Listed rows next to each other are
/// in the order of the MACs, and absent rows as well: devices respond in any order.
QStringList rowsOf(DeviceTableModel &model)
{
    QStringList rows;
    qsizetype first = 0;
    bool wasAbsent = false;
    model.setAllChecked(true);
    for (int index = 0; index < model.rowCount(); ++index) {
        const QVariantMap row = model.get(index);
        const bool isAbsent = row.value("absent").toBool();
        if (std::exchange(wasAbsent, isAbsent) != isAbsent)
            first = rows.size();
        rows.append(row.value("mac").toString().right(2) + ' ' +
                    QString::number(row.value("presence").toInt()) +
                    (row.value("checked").toBool() ? "+" : ""));
        std::sort(rows.begin() + first, rows.end());
    }
    model.setAllChecked(false);
    return rows;
}

} // namespace

class TestKnownDevices : public QObject, private FactorySite
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DeviceNotes> m_notes;
    std::unique_ptr<KnownDevices> m_known;

    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    /// As at a start of the application.
    void start()
    {
        m_known.reset();
        m_notes = std::make_unique<DeviceNotes>(path("notes.json"));
        m_known = std::make_unique<KnownDevices>(
            m_store, KnownDevices::Files{.folder = m_folder->path(), .prefix = "site"});
        m_known->setNotes(m_notes.get());
    }

    void searchKnown(bool isStopped = false)
    {
        m_known->beginSearch();
        search();
        m_known->endSearch(isStopped);
    }

    void openDevices(const QStringList &macs)
    {
        m_known.reset();
        QList<sdk::demo::SceneDevice> devices;
        for (const QString &mac : macs)
            devices.append(sceneDevice(mac, "192.168.1." + mac.right(1), "IPC"));
        openSite(devices);
    }

    std::unique_ptr<DeviceTableModel> table()
    {
        auto model = std::make_unique<DeviceTableModel>();
        model->setDeviceFactory(m_factory.get());
        model->setKnownDevices(m_known.get());
        return model;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup()
    {
        m_known.reset();
        closeSite();
    }

    void marksDevicesOverTwoStarts()
    {
        openDevices({east, west});
        start();
        searchKnown();
        QCOMPARE(rowsOf(*table()), QStringList({"01 0+", "02 0+"})); // the first list: none is new

        openDevices({west, gate});
        start();
        const auto model = table();
        const QAbstractItemModelTester tester(model.get());
        QCOMPARE(rowsOf(*model), QStringList({"01 2", "02 2"})); // greyed before the search
        QCOMPARE(model->checkState(), Qt::Unchecked);
        m_known->beginSearch();
        search();
        model->refresh();
        QCOMPARE(rowsOf(*model), QStringList({"02 0+", "03 1+", "01 2"}));
        m_known->endSearch(true); // stopped: the device may exist
        QCOMPARE(rowsOf(*model), QStringList({"02 0+", "03 1+", "01 2"}));
        searchKnown();
        QCOMPARE(rowsOf(*model), QStringList({"02 0+", "03 0+", "01 3"}));

        // Only devices of the list take part in work.
        QCOMPARE(m_factory->filterData("dh", "nofilter").size(), 2);
        model->setAllChecked(true);
        model->setCheckedDevices({east, west});
        QCOMPARE(model->checkedMacs(), QStringList{west});
        model->setAllChecked(true);
        QCOMPARE(model->checkState(), Qt::Checked);
        QCOMPARE(model->conflictCount(), 0);
        const QVariantMap absent = model->get(model->rowOf(east));
        QCOMPARE(valuesOf(absent, "absent ipport"), "true|192.168.1.1:37777");
        QVERIFY(!absent.value("lastSeen").toString().isEmpty());
        model->setCheckedDevices({west}); // a device that the user removes stays known
        QCOMPARE(model->deleteChecked(), 0);
        QCOMPARE(rowsOf(*model), QStringList({"03 0+", "01 3"}));
        searchKnown();
        QCOMPARE(rowsOf(*model), QStringList({"02 0+", "03 0+", "01 3"}));
        m_known->forget(absent, false);
        QCOMPARE(rowsOf(*model), QStringList({"02 0+", "03 0+"}));
    }

    void aNewDeviceIsMarkedInTheTree()
    {
        openDevices({east});
        start();
        searchKnown();
        openDevices({east, west});
        start();
        OVTreeModel tree;
        tree.setDeviceFactory(m_factory.get());
        tree.setKnownDevices(m_known.get());
        searchKnown();
        tree.resetItems("removeuninit", {});
        QStringList marks;
        for (int row = 0; row < tree.rowCount(tree.index(0, 0)); ++row) {
            const QModelIndex device = tree.index(row, 0, tree.index(0, 0));
            marks.append(tree.data(device, OVTreeModel::IdentityRole).toString().right(2) + ' ' +
                         tree.data(device, OVTreeModel::NewRole).toString());
        }
        QCOMPARE(marks, QStringList({"01 false", "02 true"}));
    }

    void aDeviceThatReportsItsMacLaterIsTheSame()
    {
        openDevices({});
        start();
        const QJsonObject unnamed = {{"ipport", "192.168.1.1:37777"}, {"name", "gate"}, {"state", true}};
        m_store->upsertRow(unnamed);
        searchKnown(); // empties the list
        m_store->upsertRow(unnamed);
        QCOMPARE(m_known->setGroup({unnamed.toVariantMap()}, "yard", false), "");
        m_known->endSearch(false);
        QVERIFY(m_store->changeRow("192.168.1.1:37777", [](QJsonObject &row) { row.insert("mac", east); }));
        const auto model = table();
        QCOMPARE(rowsOf(*model), QStringList{"01 0+"});
        m_known->endSearch(false);
        QCOMPARE(rowsOf(*model), QStringList{"01 0+"});
        QCOMPARE(model->get(0).value("group").toString(), "yard");
        QCOMPARE(m_known->count(), 1);
    }

    void groupsBelongToTheSite()
    {
        openDevices({east, west});
        start();
        searchKnown();
        auto model = table();
        QCOMPARE(m_known->setGroup({QVariantMap{{"mac", east}}}, "  North   wing ", false), "");
        QVERIFY(!m_known->setGroup({model->get(1)}, QString(33, 'x'), false).isEmpty());
        QCOMPARE(m_known->groups(), QStringList{"North wing"});
        model->setSearchText("north");
        QCOMPARE(rowsOf(*model), QStringList{"01 0+"});
        model.reset();

        openDevices({west}); // the group is kept while the device is missing
        start();
        searchKnown();
        model = table();
        model->setSort("group", Qt::DescendingOrder);
        QCOMPARE(rowsOf(*model), QStringList({"01 3", "02 0+"})); // an order applies to all rows
        QCOMPARE(model->get(0).value("group").toString(), "North wing");
        QCOMPARE(m_known->setGroup({model->get(0)}, "", false), "");
        QCOMPARE(m_known->groups(), QStringList());
    }

    void aFullSiteGetsNoGroup()
    {
        openDevices({});
        start();
        Site site;
        for (qsizetype number = 1; number < SiteFile::mostDevices; ++number) {
            KnownDevice &device = site.devices.emplaceBack();
            device.mac = QString::number(number);
        }
        QVERIFY(writeFile(path("full.site"), SiteFile::text(site)));
        QCOMPARE(m_known->open(path("full.site")), "");
        const QVariantMap known = {{"mac", "1"}};
        const QVariantList rows = {known, QVariantMap{{"mac", east}}, QVariantMap{{"mac", west}}};
        QVERIFY(!m_known->setGroup(rows, "yard", false).isEmpty());
        QCOMPARE(m_known->groups(), QStringList());
        QCOMPARE(m_known->count(), SiteFile::mostDevices - 1);
        QCOMPARE(m_known->setGroup(rows.first(2), "yard", false), "");
        QCOMPARE(m_known->count(), SiteFile::mostDevices);
    }

    void sitesAreSavedAndOpened()
    {
        openDevices({east, west});
        start();
        searchKnown();
        const QVariantMap eastRow = {{"mac", east}};
        QCOMPARE(m_known->setGroup({eastRow}, "gates", false), "");
        QCOMPARE(m_notes->setNote(eastRow, "rusty"), "");
        m_factory->updataDeviceInfo("dh", "password", "secret1", east, "");
        QCOMPARE(m_known->saveAs(QUrl::fromLocalFile(path("plant.site")).toString()), "");
        QCOMPARE(m_known->siteName(), "plant");
        QVERIFY(!fileContents(path("plant.site")).contains("secret1"));

        QCOMPARE(m_known->startNew(), ""); // saved before: no copy is needed
        QCOMPARE(m_known->count(), 0);
        QCOMPARE(m_known->recentSites().size(), 1);
        searchKnown();
        QCOMPARE(m_notes->setNote(eastRow, ""), "");
        QCOMPARE(m_known->open(path("plant.site")), ""); // a copy of the unsaved list is kept
        QCOMPARE(m_known->recentSites().size(), 2);
        const QString copy = m_known->recentSites().at(1).toMap().value("path").toString();
        QCOMPARE(SiteFile::readFile(copy).site.devices.size(), 2);
        QCOMPARE(m_known->groups(), QStringList{"gates"});
        QCOMPARE(m_notes->noteOf(eastRow), "rusty");

        openDevices({}); // the next start continues with the site
        start();
        QCOMPARE(m_known->siteName(), "plant");
        QCOMPARE(m_known->sitePath(), path("plant.site"));
        QCOMPARE(rowsOf(*table()), QStringList({"01 2", "02 2"}));
        QCOMPARE(m_known->setGroup({eastRow}, "yard", false), "");
        start(); // the change is still known as unsaved
        QCOMPARE(m_known->startNew(), "");
        QCOMPARE(m_known->recentSites().size(), 3);
    }

    void anInvalidFileChangesNothing_data()
    {
        const auto row = dataTable<QByteArray, QString>({"text", "reason"});
        // ' stands for "
        const QByteArray head = "{'format':'configtools-site','version':1,'name':'x','devices':[";
        const QByteArray device = "{'mac':'02:1a:c5:00:00:09','address':'10.0.0.9:80'}";
        const QByteArray sameDevice = "{'mac':'02-1A-C5-00-00-09','address':'10.0.0.8:80'}";
        row("empty", "", "不是现场文件");
        row("another format", "{'devices':[]}", "不是现场文件");
        row("truncated", head + device, "不是现场文件");
        row("no list", "{'format':'configtools-site','version':1,'devices':{}}", "不是现场文件");
        row("later version", "{'format':'configtools-site','version':2,'devices':[]}", "版本");
        row("no identity", head + "{'address':'10.0.0.9:80'}]}", "mac");
        row("number as text", head + "{'mac':5}]}", "mac");
        row("long group", head + "{'mac':'a','group':'" + QByteArray(33, 'g') + "'}]}", "group");
        row("long name", head + "{'mac':'a','name':'" + QByteArray(257, 'n') + "'}]}", "name");
        row("line break", head + "{'mac':'a','note':'b\\nc'}]}", "note");
        row("port", head + "{'mac':'a','httpPort':65536}]}", "httpPort");
        row("port as text", head + "{'mac':'a','httpPort':'80'}]}", "httpPort");
        row("list as text", head + "{'mac':'a','ipv6':'true'}]}", "ipv6");
        row("state as number", head + "{'mac':'a','initialised':0}]}", "initialised");
        row("no time", head + "{'mac':'a','lastSeen':'yesterday'}]}", "lastSeen");
        row("site without a text", "{'format':'configtools-site','version':1,'name':5,'devices':[]}", "名称");
        row("twice", head + device + ',' + sameDevice + "]}", "第 2 台设备重复");
        row("too many", head + QByteArray("{},").repeated(40'000) + "{}]}", "40000");
        row("deep", QByteArray(100'000, '['), "不是现场文件");
    }

    void anInvalidFileChangesNothing()
    {
        QFETCH(QByteArray, text);
        QFETCH(const QString, reason);
        text.replace('\'', '"');
        openDevices({east});
        start();
        searchKnown();
        QVERIFY(writeFile(path("other.site"), text));
        const QString refusal = m_known->open(path("other.site"));
        QVERIFY2(refusal.contains(reason), qPrintable(refusal));
        QCOMPARE(rowsOf(*table()), QStringList{"01 0+"});
        QCOMPARE(m_known->siteName(), "");

        // The same file as the stored list: it is kept under another name.
        m_known.reset();
        QVERIFY(writeFile(path("site.site"), text));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot read.*"));
        start();
        QVERIFY(!m_known->problem().isEmpty());
        searchKnown();
        m_known.reset();
        QCOMPARE(fileContents(path("site.site.damaged")), text);
        QCOMPARE(SiteFile::readFile(path("site.site")).site.devices.size(), 1);
    }

    void aFileKeepsEveryValue()
    {
        Site site = {.name = "现场 \"1\"", .devices = {}};
        constexpr int devices = 5; // the last two: IPv6 devices that are named by their MACs
        for (int number = 0; number < devices; ++number) {
            site.devices.append({.identity = number == 1 ? "uuid:7" : "",
                                 .mac = number == 1 ? QString() : QString::number(number),
                                 .ipport = "10.0.0.1:80",
                                 .name = "a<&\"\\,东门",
                                 .type = "IPC",
                                 .model = "B-2230",
                                 .version = "v2",
                                 .serial = "S1",
                                 .group = QString(32, 'g'),
                                 .note = "note",
                                 .httpPort = 65535,
                                 .isInitialised = number != 2,
                                 .isIPv6 = number == 1 || number > 2,
                                 .lastSeen = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC)});
        }
        const SiteFile::Contents contents = SiteFile::read(SiteFile::text(site));
        QCOMPARE(contents.refusal, "");
        QCOMPARE(contents.site.name, site.name);
        QCOMPARE(contents.site.devices.size(), devices);
        for (int number = 0; number < devices; ++number) {
            QVERIFY(contents.site.devices.at(number).isSameAs(site.devices.at(number)));
            QCOMPARE(contents.site.devices.at(number).lastSeen, site.devices.at(number).lastSeen);
        }
    }

    /// A name that begins with ":" or "." would be a path of a resource or a hidden file.
    void copiesAreInTheirFolder()
    {
        openDevices({east});
        start();
        searchKnown();
        for (const QString name : {":yard", ".yard"}) {
            QCOMPARE(m_known->saveAs(m_folder->path() + '/' + name + ".site"), "");
            QCOMPARE(m_known->setGroup({QVariantMap{{"mac", east}}}, name, false), "");
            QCOMPARE(m_known->open(m_folder->path() + '/' + name + ".site"), "");
            const QString copy = m_known->recentSites().at(1).toMap().value("path").toString();
            QVERIFY2(copy.startsWith(m_folder->path()) && !QFileInfo(copy).isHidden(), qPrintable(copy));
            QCOMPARE(SiteFile::readFile(copy).site.devices.size(), 1);
        }
    }

    /// A device may have any name: the file must stay readable.
    void unusualNamesAreStored()
    {
        openDevices({east});
        start();
        searchKnown();
        m_factory->updataDeviceInfo("dh", "name", "a\x1b" + QString(300, 'n'), east, "");
        m_known->endSearch(false);
        start();
        QCOMPARE(m_known->problem(), "");
        QCOMPARE(table()->get(0).value("mac").toString(), east);
    }

    void onlyTheLastSitesAreRemembered()
    {
        openDevices({east});
        start();
        searchKnown();
        for (int number = 1; number <= 10; ++number)
            QCOMPARE(m_known->saveAs(path(QString::number(number) + ".site")), "");
        QCOMPARE(m_known->saveAs(path("5.site")), "");
        start();
        QStringList names;
        for (const QVariant &recent : m_known->recentSites())
            names.append(recent.toMap().value("name").toString());
        QCOMPARE(names.join(' '), "5 10 9 8 7 6 4 3");
        QFile::remove(path("7.site"));
        QVERIFY(!m_known->open(path("7.site")).isEmpty());
        QCOMPARE(m_known->recentSites().size(), 7);
        QVERIFY(!m_known->saveAs(path("missing/1.site")).isEmpty());
        QCOMPARE(m_known->siteName(), "5");
    }
};

QTEST_GUILESS_MAIN(TestKnownDevices)
#include "tst_knowndevices.moc"
