// Logins to the found devices, and requests to devices without a MAC.
#include "device/dh/devicedh.h"
#include "device/dh/logins/foundlogins.h"
#include "device/store/devicestore.h"
#include "tests/datatable.h"
#include "tests/device/searchresponses.h"
#include "tests/media/quietnetlibrary.h"
#include "tests/values.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <utility>

namespace {

/// Devices that all have one account. Records the requests.
class OneAccountLibrary : public QuietNetLibrary
{
public:
    std::int64_t NetLoginSecure(const sdk::LoginSecureInput &input, sdk::LoginSecureOutput &) override
    {
        const std::scoped_lock lock(m_mutex);
        m_logins.append(QString::fromStdString(std::string(sdk::blockText(input.address))));
        return sdk::blockText(input.password) == "right" ? 1 : 0;
    }
    std::uint32_t NetGetLastError() const override
    {
        return static_cast<std::uint32_t>(sdk::NetError::WrongPassword);
    }
    bool NetQueryConfig(sdk::LLONG, sdk::QueryCommand, std::int32_t, void *buffer, std::uint32_t size,
                        std::uint32_t &returned, std::chrono::milliseconds) override
    {
        sdk::DeviceAttributes attributes{};
        sdk::setBlockText(attributes.softwareVersion, "9.1");
        sdk::setBlockText(attributes.detailModel, "B-1");
        sdk::setBlockText(attributes.mac, "02:1a:c5:00:00:09");
        sdk::setBlockText(attributes.serialNumber, "S9");
        std::memcpy(buffer, &attributes, std::min<std::size_t>(size, sizeof(attributes)));
        returned = size;
        return true;
    }
    bool NetInitDeviceAccount(const sdk::InitDeviceAccountInput &input, sdk::DeviceRequestOutput &,
                              std::chrono::milliseconds, const char *) override
    {
        m_requested = "password at " + std::string(sdk::blockText(input.address));
        return true;
    }
    bool NetModifyDeviceBySearch(const sdk::ModifyDeviceInput &input, sdk::DeviceRequestOutput &,
                                 std::chrono::milliseconds) override
    {
        m_requested = "address at " + std::string(sdk::blockText(input.device.currentAddress));
        return true;
    }

    QStringList takeLogins()
    {
        const std::scoped_lock lock(m_mutex);
        QStringList logins = std::exchange(m_logins, {});
        logins.sort();
        return logins;
    }
    std::string m_requested;

private:
    std::mutex m_mutex;
    QStringList m_logins; ///< addresses
};

/// The response of a device that reports only its name.
sdk::SearchResponse bareResponse(const ResponseTexts &texts)
{
    sdk::SearchResponse response = searchResponse(texts);
    response.device.detailModel = {};
    response.device.softwareVersion = {};
    return response;
}

} // namespace

class TestFoundLogins : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    std::shared_ptr<DeviceStore> m_store;
    std::shared_ptr<OneAccountLibrary> m_net;

    sdk::SdkLibraries libraries() const
    {
        sdk::SdkLibraries libraries;
        libraries.net = m_net;
        libraries.clock = m_clock;
        return libraries;
    }

    /// Runs the logins of a search that found the devices of `m_store`. Returns their addresses.
    QStringList search(FoundLogins &logins, const QString &account, const QString &password) const
    {
        AccountChoice accounts;
        accounts.setStored([](const QStringList &identities) {
            return identities.contains("m7")
                       ? std::optional(DeviceAccount{.account = "own", .password = "right"})
                       : std::nullopt;
        });
        accounts.setDefault({.account = account, .password = password});
        logins.begin(account.isEmpty() ? std::nullopt : std::optional(accounts));
        logins.logInToNew();
        logins.logInToNew();
        logins.waitForDone();
        return m_net->takeLogins();
    }

private Q_SLOTS:
    void init()
    {
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        m_store = std::make_shared<DeviceStore>(m_clock);
        m_net = std::make_shared<OneAccountLibrary>();
    }

    void rowsAreCompleted()
    {
        m_store->addResponse(bareResponse({.address = "192.168.1.10", .mac = "", .uuid = "5f5a"}));
        m_store->addResponse(searchResponse({.address = "192.168.1.11"})); // complete
        m_store->addResponse(bareResponse(
            {.address = "192.168.1.12", .mac = "m3", .state = sdk::InitialisationBits::Uninitialised}));
        FoundLogins logins(m_store, libraries());
        QCOMPARE(search(logins, "admin", "right"), QStringList("192.168.1.10"));
        QCOMPARE(valuesOf(m_store->rowNamed("uuid:5f5a"), "model vision mac"), "B-1|v9.1|02:1a:c5:00:00:09");
        QCOMPARE(sdk::blockText(m_store->record("uuid:5f5a")->device.serialNumber), "S9");
        QCOMPARE(search(logins, "", ""), QStringList()); // disabled
    }

    void aDeviceIsQueriedWithItsOwnAccount()
    {
        m_store->addResponse(bareResponse({.address = "192.168.1.10", .mac = "m7"}));
        m_store->addResponse(bareResponse({.address = "192.168.1.11", .mac = "m8"}));
        FoundLogins logins(m_store, libraries());
        QCOMPARE(search(logins, "admin", "wrong"), QStringList({"192.168.1.10", "192.168.1.11"}));
        QCOMPARE(m_store->row("m7").value("model").toString(), "B-1");
        QCOMPARE(m_store->row("m8").value("model").toString(), "");
    }

    void aWrongPasswordIsNotSentAgain()
    {
        const QStringList device("192.168.1.10");
        m_store->addResponse(bareResponse({.address = "192.168.1.10", .mac = "m1"}));
        FoundLogins logins(m_store, libraries());
        QCOMPARE(search(logins, "admin", "wrong"), device);
        QCOMPARE(search(logins, "admin", "wrong"), QStringList());
        m_store->clear(); // the next search finds it without its MAC
        m_store->addResponse(bareResponse({.address = "192.168.1.10", .mac = ""}));
        QCOMPARE(search(logins, "admin", "wrong"), QStringList());
        QCOMPARE(search(logins, "", ""), QStringList());
        QCOMPARE(search(logins, "admin", "wrong"), QStringList());
        QCOMPARE(search(logins, "admin", "wrong2"), device);
        QCOMPARE(search(logins, "admin", "right"), device);
        QCOMPARE(valuesOf(m_store->row("192.168.1.10:37777"), "model mac"), "B-1|02:1a:c5:00:00:09");
    }

    void aDeviceWithoutAMacCanBeChanged_data()
    {
        const auto row = dataTable<QByteArray, bool, bool>({"uuid", "isNew", "isSent"});
        row("first password", "5f5a", true, true);
        row("address", "5f5a", false, true);
        row("no UUID either", "", true, false);
    }

    void aDeviceWithoutAMacCanBeChanged()
    {
        QFETCH(QByteArray, uuid);
        QFETCH(bool, isNew);
        QFETCH(bool, isSent);
        const auto state =
            isNew ? sdk::InitialisationBits::Uninitialised : sdk::InitialisationBits::Initialised;
        m_store->addResponse(searchResponse({.mac = "", .state = state, .uuid = uuid.toStdString()}));
        CDeviceDH backEnd(m_store, libraries(), [] { return SearchSettings(); });
        const QString name = uuid.isEmpty() ? QString("192.168.1.64:37777") : QString("uuid:" + uuid);
        const DeviceStep step = isNew ? backEnd.initialisationStep(name, "admin", "first-1")
                                      : backEnd.addressStep(name, "192.168.1.70", "255.255.255.0", "", false);
        const StepOutcome outcome = step(StepControl());
        QCOMPARE(outcome.result == 0, isSent);
        const std::string kind = isNew ? "password" : "address";
        QCOMPARE(m_net->m_requested, isSent ? kind + " at 192.168.1.64" : std::string());
        QCOMPARE(m_store->rowNamed(name).value("res").toInt(), outcome.result);
    }
};

QTEST_GUILESS_MAIN(TestFoundLogins)
#include "tst_foundlogins.moc"
