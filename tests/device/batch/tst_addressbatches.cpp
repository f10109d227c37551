#include "device/batch/addressorder.h"
#include "device/batch/batchpreview.h"
#include "tests/datatable.h"
#include "tests/device/batch/batchsite.h"

#include <QThreadPool>

namespace {

constexpr int notDone = BatchReport::NotDone;

} // namespace

/// Batches that change and restore addresses.
class TestAddressBatches : public QObject, private BatchSite
{
    Q_OBJECT
private:
    [[nodiscard]] QStringList addresses() const
    {
        QStringList addresses;
        for (const sdk::demo::SceneDevice &device : m_site->site->devices())
            addresses.append(device.address);
        return addresses;
    }
    /// Changes the address of one device. Returns the ended batch; null if it does not end.
    [[nodiscard]] Batch *change(int device, const QString &address, const QString &mask = "255.255.255.0",
                                const QString &gateway = {}) const
    {
        Batch *batch = m_batches->changeAddresses("dh", "Addresses", {m_devices.at(device).mac}, {address},
                                                  mask, gateway, false);
        return QTest::qWaitFor([batch] { return !batch->isRunning(); }) ? batch : nullptr;
    }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void addressesAreRestored_data()
    {
        const auto row = dataTable<bool>({"respondsTwice"});
        row("devices respond once to a search", false);
        row("devices respond twice to a search", true);
    }

    void addressesAreRestored()
    {
        QFETCH(const bool, respondsTwice);
        for (const QString &mac : respondsTwice ? macs() : QStringList())
            m_site->site->setFault(mac, {.fault = sdk::demo::Fault::AnswerTwice});
        const QStringList before = addresses();
        // Each device gets the address of the next one: the last device must be changed first.
        const QStringList wanted = {"192.168.1.2", "192.168.1.3", "192.168.1.4", "192.168.1.5"};
        // A repeated device does not shift the addresses of the others.
        Batch *batch =
            m_batches->changeAddresses("dh", "Addresses", macs().first(1) + macs(), wanted.first(1) + wanted,
                                       "255.255.255.0", "192.168.1.1", false);
        QVERIFY(batch);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->report()->succeeded(), 4);
        QCOMPARE(addresses(), wanted);
        QStringList backwards = macs();
        std::reverse(backwards.begin(), backwards.end());
        QCOMPARE(askedMacs("NetModifyDeviceBySearch"), backwards);

        QVERIFY(QThreadPool::globalInstance()->waitForDone(30000)); // the rows have been queried again
        m_site->site->changeDevice(m_devices.at(2).mac, [](auto &device, const auto &) {
            device.address = "192.168.1.77"; // it does not respond at its new address
        });
        m_site->site->requests().clear();
        QStringList wantedBack;
        for (const QVariant &entry : m_batches->addressesToPutBack(batch))
            wantedBack.append(entry.toMap().value("action").toString());
        QCOMPARE(wantedBack, QStringList({"192.168.1.4", "192.168.1.3", "192.168.1.2", "192.168.1.1"}));
        Batch *back = m_batches->putAddressesBack(batch, "Back", macs());
        QVERIFY(back);
        QTRY_VERIFY(!back->isRunning());
        QStringList asked;
        for (const sdk::demo::RecordedRequest &request : m_site->site->requests().all())
            asked.append(request.operation);
        QVERIFY(asked.contains("NetStartSearchDevices"));
        QVERIFY(asked.indexOf("NetStartSearchDevices") < asked.indexOf("NetModifyDeviceBySearch"));
        QCOMPARE(askedMacs("NetModifyDeviceBySearch").size(), 4);
        QCOMPARE(back->report()->succeeded(), 4);
        QCOMPARE(addresses(), before);
    }

    /// The device does not respond and the clock is stopped, so the request does not time out.
    void aStopEndsTheWaitForAnAddress()
    {
        m_site->site->setFault(m_devices.at(0).mac, {.fault = sdk::demo::Fault::NoAnswer});
        m_site->stopTime();
        Batch *batch = m_batches->changeAddresses("dh", "Addresses", macs(), wantedAddresses(),
                                                  "255.255.255.0", "192.168.1.1", false);
        const auto goOn = qScopeGuard([this] { m_site->letTimePass(); });
        QTRY_VERIFY(!askedMacs("NetModifyDeviceBySearch").isEmpty());
        batch->stop();
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->report()->devicesWith(notDone), macs());
        // The address was not sent, so the device keeps it.
        QCOMPARE(m_site->store->row(m_devices.at(0).mac).value("ipport").toString(), "192.168.1.1:37777");
    }

    /// A search or the user has removed its row.
    void aDeviceWithoutARowIsRestored()
    {
        const QString mac = m_devices.at(0).mac;
        Batch *batch = change(0, "192.168.1.50", "255.255.0.0", "192.168.1.9");
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30000)); // the row has been queried again
        m_site->factory->setDeleteDevice("dh", mac, "IPV4");
        const QVariantMap entry = m_batches->addressesToPutBack(batch).value(0).toMap();
        QCOMPARE(entry.value("ipport").toString(), "192.168.1.50:37777");
        QCOMPARE(entry.value("mac").toString(), mac);
        Batch *back = m_batches->putAddressesBack(batch, "Back", {mac});
        QTRY_VERIFY(!back->isRunning());
        QCOMPARE(back->report()->succeeded(), 1);
        const auto device = m_site->site->device(mac);
        QCOMPARE(QStringList({device->address, device->mask, device->gateway}),
                 QStringList({"192.168.1.1", "255.255.255.0", "192.168.1.1"}));
        QCOMPARE(m_site->store->row(mac).value("ipport").toString(), "192.168.1.1:37777");
        // A failed restoration would be sent again.
        QCOMPARE(back->plan().addressesBefore.value(mac).address, "192.168.1.50");
    }

    void restoringAnAddressInUseIsAWarning()
    {
        Batch *first = change(0, "192.168.1.50");
        BatchPreview preview;
        preview.setDeviceFactory(m_site->factory.get());
        preview.setEntries(m_batches->addressesToPutBack(first));
        QCOMPARE(preview.warningCount(), 0);
        QVERIFY(change(1, "192.168.1.1"));
        preview.setEntries(m_batches->addressesToPutBack(first));
        QCOMPARE(preview.warningCount(), 1);

        const QVariantMap entry = {{"name", m_devices.at(2).mac}, {"newAddress", "192.168.1.99"}};
        preview.setEntries(
            {entry, QVariantMap{{"name", m_devices.at(3).mac}, {"newAddress", "192.168.1.99"}}});
        QCOMPARE(preview.warningCount(), 2); // both would get the same address
        preview.setRangeChecked(0, 0, false);
        QCOMPARE(preview.warningCount(), 0);
    }

    /// Its row shows the requested address since then.
    void aDeviceIsRestoredAfterAFailedChange()
    {
        const QString mac = m_devices.at(0).mac;
        const auto wanted = [&](Batch *batch) {
            const QVariantList entries = m_batches->addressesToPutBack(batch);
            return entries.value(0).toMap().value("action").toString();
        };
        m_site->site->setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
        Batch *failed = change(0, "192.168.1.50");
        QCOMPARE(failed->report()->failed(), 1);
        QCOMPARE(wanted(failed), "192.168.1.1"); // the change may have been applied
        m_site->site->clearFault(mac, sdk::demo::Fault::NoAnswer);
        Batch *done = change(0, "192.168.1.60");
        QCOMPARE(done->report()->succeeded(), 1);
        QCOMPARE(wanted(done), "192.168.1.1");
        QCOMPARE(wanted(change(0, "192.168.1.70")), "192.168.1.60");
    }

    /// This also works before the device has been queried again.
    void allFieldsOfAChangeAreRestored()
    {
        const QString mac = m_devices.at(0).mac;
        QVERIFY(change(0, "192.168.5.9", "255.255.0.0", "192.168.0.1"));
        Batch *second = change(0, "192.168.5.10", "255.255.255.0", "192.168.5.1");
        Batch *back = m_batches->putAddressesBack(second, "Back", {mac});
        QTRY_VERIFY(!back->isRunning());
        const auto device = m_site->site->device(mac);
        QCOMPARE(QStringList({device->address, device->mask, device->gateway}),
                 QStringList({"192.168.5.9", "255.255.0.0", "192.168.0.1"}));
    }

    void noDeviceGetsAnAddressInUse_data()
    {
        const auto row = dataTable<sdk::demo::Fault, int>({"fault", "retryable"});
        row("its device refuses another one", sdk::demo::Fault::RefusesAddressChange, 0);
        row("its device does not respond", sdk::demo::Fault::NoAnswer, 4);
    }

    void noDeviceGetsAnAddressInUse()
    {
        QFETCH(const sdk::demo::Fault, fault);
        m_site->site->setFault(m_devices.at(3).mac, {.fault = fault});
        Batch *batch = m_batches->changeAddresses(
            "dh", "Addresses", macs(), {"192.168.1.2", "192.168.1.3", "192.168.1.4", "192.168.1.5"},
            "255.255.255.0", "192.168.1.1", false);
        QVERIFY(batch);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(askedMacs("NetModifyDeviceBySearch"), QStringList(m_devices.at(3).mac));
        QVERIFY(batch->textOf(m_devices.at(2).mac).contains("192.168.1.4"));
        QTEST(static_cast<int>(batch->retryableDevices().size()), "retryable");
    }

    void devicesThatMayHaveChangedAreRestored_data()
    {
        const auto row = dataTable<LoginResult, int>({"result", "entries"});
        row("confirmed", LoginResult::Success, 1);
        row("no response", LoginResult::NetworkFailure, 1);
        row("no response at the new address", LoginResult::Unconfirmed, 1);
        row("another device responds there", LoginResult::AddressInUse, 1);
        row("refused", LoginResult::Refused, 0);
    }

    void devicesThatMayHaveChangedAreRestored()
    {
        QFETCH(const LoginResult, result);
        BatchPlan plan;
        plan.family = "dh";
        plan.devices = batchDevices(*m_site->factory, "dh", {m_devices.at(0).mac});
        plan.addressesBefore.insert(identityOf(0), {.address = "192.168.1.9", .mask = {}, .gateway = {}});
        plan.stepOf = [result](const BatchDevice &) {
            return [result](const StepControl &) {
                return StepOutcome{.result = resultCode(result), .text = {}};
            };
        };
        Batch *batch = m_batches->start(std::move(plan));
        QTRY_VERIFY(!batch->isRunning());
        QTEST(static_cast<int>(m_batches->addressesToPutBack(batch).size()), "entries");
    }

    void devicesDoNotExchangeAddresses()
    {
        const QSignalSpy refused(m_batches.get(), &Batches::refused);
        QCOMPARE(m_batches->changeAddresses("dh", "Addresses", macs().first(2),
                                            {"192.168.1.2", "192.168.1.1"}, "255.255.255.0", "192.168.1.254",
                                            false),
                 nullptr);
        QVERIFY(refused.first().first().toString().contains("192.168.1.2"));
        QVERIFY(askedMacs("NetModifyDeviceBySearch").isEmpty());
    }

    void addressesAreOrdered_data()
    {
        const auto row = dataTable<QStringList, QStringList, QList<qsizetype>, QList<qsizetype>>(
            {"before", "after", "order", "circle"});
        using Indexes = QList<qsizetype>;
        row("nothing shared", QStringList{"a", "b"}, QStringList{"x", "y"}, Indexes{0, 1}, Indexes{});
        row("upwards", QStringList{"a", "b", "c"}, QStringList{"b", "c", "d"}, Indexes{2, 1, 0}, Indexes{});
        row("keeps its address", QStringList{"a", "b"}, QStringList{"a", "c"}, Indexes{0, 1}, Indexes{});
        row("keeps an address that another device leaves", QStringList{"a", "a"}, QStringList{"a", "b"},
            Indexes{1, 0}, Indexes{});
        row("dhcp", QStringList{"a", "b"}, QStringList{"", ""}, Indexes{0, 1}, Indexes{});
        row("two devices with one address", QStringList{"a", "b", "b"}, QStringList{"b", "c", "d"},
            Indexes{1, 2, 0}, Indexes{});
        row("circle", QStringList{"a", "b", "c"}, QStringList{"b", "a", "z"}, Indexes{2}, Indexes{0, 1});
    }

    void addressesAreOrdered()
    {
        QFETCH(QStringList, before);
        QFETCH(QStringList, after);
        QList<AddressChange> changes;
        for (qsizetype index = 0; index < before.size(); ++index)
            changes.append({.oldAddress = before.at(index), .newAddress = after.at(index)});
        const AddressOrder order = addressOrder(changes);
        QTEST(order.order, "order");
        QTEST(order.circle, "circle");
    }
};

QTEST_GUILESS_MAIN(TestAddressBatches)
#include "tst_addressbatches.moc"
