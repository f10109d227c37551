#include "device/models/devicetablemodel.h"
#include "device/models/liveorder.h"
#include "device/models/watcheddevices.h"
#include "device/registry/devicefactory.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"

namespace {

QString ipportOf(int number)
{
    return QStringLiteral("192.168.1.%1:37777").arg(number);
}

QVariantMap rowOf(int number, const QString &name = {})
{
    return {{"ipport", ipportOf(number)}, {"name", name}};
}

QVariantList channelsNamed(const QStringList &names)
{
    QVariantList channels;
    for (const QString &name : names)
        channels.append(
            QVariantMap{{"channel", static_cast<int>(channels.size())}, {"name", name}, {"connected", true}});
    return channels;
}

} // namespace

/// The devices of the live window, and the navigation through the list, without a window.
class TestWatchedDevices : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<WatchedDevices> m_watched;
    QStringList m_left; ///< the remaining channels at each removal of a device
    QObject m_companion;

    /// Adds a device as QML does, which creates an object for each row.
    void add(int number, const QString &name, const QStringList &channels)
    {
        m_watched->add({rowOf(number, name)});
        m_watched->setChannels(ipportOf(number), &m_companion, channelsNamed(channels));
    }

    [[nodiscard]] QStringList texts(const QString &key) const
    {
        QStringList values;
        for (const QVariant &entry : m_watched->channels())
            values.append(entry.toMap().value(key).toString());
        return values;
    }

private Q_SLOTS:
    void init() { m_watched = std::make_unique<WatchedDevices>(); }

    void captionsAreUnique_data()
    {
        const auto row = dataTable<QStringList, QStringList, QStringList>({"names", "channels", "captions"});
        row("one device", {"Gate"}, {"C0"}, {"C0"});
        row("two", {"Gate", "Hall"}, {"C0", "C0"}, {"Gate · C0", "Hall · C0"});
        row("the same name", {"NVR", "NVR"}, {"C0", "C0"},
            {"NVR " + ipportOf(0) + " · C0", "NVR " + ipportOf(1) + " · C0"});
        row("no name", {"", "Hall"}, {"C0", "C0"}, {ipportOf(0) + " · C0", "Hall · C0"});
        row("channel without a name", {"Gate", "Hall"}, {"", "C0"}, {"Gate", "Hall · C0"});
        row("the channel has the name of the device", {"Gate", "Hall"}, {"Gate 1", "C0"},
            {"Gate 1", "Hall · C0"});
    }

    void captionsAreUnique()
    {
        QFETCH(const QStringList, names);
        QFETCH(const QStringList, channels);
        m_watched->setFirst(ipportOf(0), names.first(), channelsNamed({channels.first()}));
        for (int number = 1; number < names.size(); ++number)
            add(number, names.at(number), {channels.at(number)});
        QTEST(texts("caption"), "captions");
        QVERIFY(!texts("name").contains(QString()));
        QCOMPARE(m_watched->channels().first().toMap().contains("heading"), names.size() > 1);
    }

    void devicesAreAddedOnceWhileThereIsRoom()
    {
        m_watched->setFirst(ipportOf(0), "D0", channelsNamed({"C0", "C1"}));
        connect(m_watched.get(), &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) {
                    for (int row = first; row <= last; ++row) {
                        const QString ipport =
                            m_watched->data(m_watched->index(row), Qt::UserRole).toString();
                        m_watched->setChannels(ipport, &m_companion, channelsNamed({"C0"}));
                    }
                });
        QCOMPARE(m_watched->add({rowOf(0), rowOf(1), rowOf(2), rowOf(1)}), (QVariantList{2, 3}));
        QCOMPARE(m_watched->rowCount(), 2); // of two devices with the same address, one
        QVariantList rows;
        for (int number = 0; number < 20; ++number)
            rows.append(rowOf(number));
        QCOMPARE(m_watched->add(rows).size(), 13);
        QCOMPARE(m_watched->property("leftOut").toInt(), 4); // 19 devices, of which 15 fit
        QVERIFY(m_watched->isFull());
        QCOMPARE(m_watched->add({rowOf(1)}), QVariantList());
        QCOMPARE(m_watched->property("leftOut").toInt(), 0);
    }

    /// The streams of a device end before its session.
    void theChannelsOfADeviceAreRemovedBeforeIt()
    {
        m_watched->setFirst(ipportOf(0), "D0", channelsNamed({"C0"}));
        add(1, "D1", {"C0", "C1"});
        add(2, "D2", {"C0"});
        connect(m_watched.get(), &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this] { m_left = texts("ipport"); });
        m_watched->remove(ipportOf(1));
        QCOMPARE(m_left, (QStringList{ipportOf(0), ipportOf(2)}));
        connect(m_watched.get(), &QAbstractItemModel::modelAboutToBeReset, this,
                [this] { m_left = texts("ipport"); });
        m_watched->clear();
        QCOMPARE(m_left, QStringList(ipportOf(0)));
        QCOMPARE(texts("caption"), QStringList("C0"));
    }

    void navigationSkipsDevicesThatCannotBeWatched_data()
    {
        const auto row = dataTable<bool, int, int, QString>({"isChosen", "from", "direction", "next"});
        row("skips an uninitialised device", false, 21, 1, ipportOf(23));
        row("the last one", false, 24, 1, QString());
        row("backwards", false, 21, -1, ipportOf(20));
        row("from an unlisted device", false, 90, 1, ipportOf(20));
        row("from a row that is named by its UUID", false, 23, 1, ipportOf(24));
        row("among the selected devices", true, 20, 1, ipportOf(24));
    }

    void navigationSkipsDevicesThatCannotBeWatched()
    {
        QFETCH(const bool, isChosen);
        QFETCH(const int, from);
        QFETCH(const int, direction);
        const auto devices = std::make_shared<RowsBackEnd>();
        for (int number = 20; number < 25; ++number)
            devices->add({.address = QStringLiteral("192.168.1.%1").arg(number).toStdString(),
                          .mac = numberedMac(number),
                          .state = number == 22 ? sdk::InitialisationBits::Uninitialised
                                                : sdk::InitialisationBits::Initialised});
        QJsonObject named = devices->ipv4.at(3).toJsonObject();
        named.insert("identity", "uuid:23");
        devices->ipv4[3] = named;
        CDeviceFactory::registerBackEnd("dh", [devices] { return devices; });
        const auto end = qScopeGuard([] { CDeviceFactory::deleteInstance(); });
        DeviceTableModel table;
        table.setDeviceFactory(CDeviceFactory::getinstance());
        LiveOrder order;
        order.setDeviceFactory(CDeviceFactory::getinstance());
        order.setTable(&table);
        if (isChosen)
            order.setChosen({rowOf(20), rowOf(24)});
        QCOMPARE(order.count(), isChosen ? 2 : 5);
        QTEST(order.neighbour(ipportOf(from), direction), "next");
        table.setAllChecked(true);
        QCOMPARE(order.tickedDevices().size(), 4);
    }
};

QTEST_GUILESS_MAIN(TestWatchedDevices)
#include "tst_watcheddevices.moc"
