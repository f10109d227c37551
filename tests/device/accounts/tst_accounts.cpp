// The account that is used for a device, and the storage of an account that the device has accepted.
#include "device/models/accountlist.h"
#include "favourites/author.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"
#include "tests/files/filecontents.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

const QString firstMac = QStringLiteral("02:1a:c5:00:00:01");
const QString secondMac = QStringLiteral("02:1a:c5:00:00:02");
const QString newMac = QStringLiteral("02:1a:c5:00:00:03");
const QString first = QStringLiteral("192.168.1.10:37777");
const QString second = QStringLiteral("192.168.1.11:37777");
const QString fresh = QStringLiteral("192.168.1.12:37777");

} // namespace

class TestAccounts : public QObject, private FactorySite
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    std::shared_ptr<AccountStore> m_accounts;
    std::unique_ptr<AccountList> m_list;
    DeviceAccount m_default;

    [[nodiscard]] QString path() const { return m_folder.filePath("accounts.json"); }

    /// Starts the application and searches.
    void start()
    {
        m_list.reset();
        m_accounts = std::make_shared<AccountStore>(path());
        m_list =
            std::make_unique<AccountList>(*m_factory, m_accounts,
                                          AccountList::Defaults{.read = [this] { return m_default; },
                                                                .write =
                                                                    [this](const DeviceAccount &account) {
                                                                        m_default = account;
                                                                        setDefault();
                                                                    }});
        setDefault();
        search();
    }
    void setDefault() { m_factory->setDefaultAccount("dh", m_default.account, m_default.password); }

    /// Reads the clock of a device once. Returns the accounts of the logins and the result code.
    QString asking(const QString &ipport)
    {
        m_site->requests().clear();
        const StepOutcome outcome =
            m_factory->backEnd("dh")->systemStep("readTime", {}, ipport)(StepControl());
        QStringList texts;
        for (const auto &login : m_site->requests().of("NetLoginSecure"))
            texts.append(login.request.value("account").toString());
        return texts.join(' ') + ' ' + QString::number(outcome.result);
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(path());
        m_storedAccounts = [this](const QStringList &identities) -> std::optional<DeviceAccount> {
            const auto stored = m_accounts->accountOf(identities);
            if (!stored)
                return std::nullopt;
            return DeviceAccount{.account = stored->account, .password = stored->password};
        };
        auto newDevice = sceneDevice(newMac, "192.168.1.12");
        newDevice.accounts.clear();
        newDevice.initialisation = sdk::InitialisationBits::Uninitialised;
        auto other = sceneDevice(secondMac, "192.168.1.11");
        other.accounts = {{"operator", "other-1"}};
        m_default = {.account = "admin", .password = "secret1"};
        openSite({sceneDevice(firstMac, "192.168.1.10"), other, newDevice});
        start();
    }

    void cleanup()
    {
        m_list.reset();
        closeSite();
    }

    void aDeviceIsAccessedWithOneAccount()
    {
        QCOMPARE(asking(first), "admin 0");
        QCOMPARE(asking(second), "admin 1");
        QCOMPARE(m_list->put({}, "Site", "operator", "other-1"), "");
        QCOMPARE(asking(second), "admin 1"); // stored accounts are not tried automatically
        QCOMPARE(m_list->select({secondMac}, "Site"), "");
        QCOMPARE(asking(first), "admin 0");
        QCOMPARE(asking(second), "operator 0");
        QCOMPARE(m_list->get(m_list->rowOfDevice(second)).value("name").toString(), "Site");
        QCOMPARE(m_list->rowOfDevice(first), 0);

        // The account belongs to the device regardless of its address, and precedes the default after each
        // start.
        m_site->changeDevice(secondMac, [](auto &device, const auto &) { device.address = "192.168.1.77"; });
        start();
        QCOMPARE(asking("192.168.1.77:37777"), "operator 0");
        QCOMPARE(
            m_factory->backEnd("dh")
                ->addressStep(secondMac, "192.168.1.78", "255.255.255.0", "192.168.1.1", false)(StepControl())
                .result,
            0);
        QCOMPARE(m_factory->readDeviceDetail("dh", "192.168.1.78:37777").value("loginResult").toInt(), 0);

        // An account entered for the row precedes it until the user selects one again.
        m_factory->updataDeviceInfo("dh", "username", "guest", secondMac, "");
        QCOMPARE(asking("192.168.1.78:37777"), "guest 1");
        QCOMPARE(m_list->rowOfDevice(secondMac), -1);
        QCOMPARE(m_list->select({secondMac}, "Site"), "");
        QCOMPARE(asking("192.168.1.78:37777"), "operator 0");
        QCOMPARE(m_list->select({secondMac}, {}), "");
        QCOMPARE(asking("192.168.1.78:37777"), "admin 1");
    }

    /// It is used until the user sets a different default account. A search sets the same default again.
    void anAccountForAllFollowingDevicesReplacesTheDefault()
    {
        QCOMPARE(m_list->put({}, "Site", "admin", "secret1"), "");
        QCOMPARE(m_list->select({firstMac}, "Site"), "");
        m_factory->setFollowingAccount("dh", "operator", "other-1");
        setDefault();
        QCOMPARE(asking(second), "operator 0");
        QCOMPARE(asking(first), "admin 0"); // has its own account
        QVERIFY(m_factory->accountOf("dh", second).value("isFollowing").toBool());
        m_default.password = "another";
        setDefault();
        QCOMPARE(asking(second), "admin 1");
    }

    void accountsWithoutDevicesAreRemovedTogether()
    {
        for (const char *name : {"Old", "Site", "Spare"})
            QCOMPARE(m_list->put({}, name, "operator", "other-1"), "");
        QCOMPARE(m_list->select({secondMac}, "Site"), "");
        QCOMPARE(m_list->unused(), QStringList({"Old", "Spare"}));
        QCOMPARE(m_list->removeUnused(), "");
        QCOMPARE(m_list->rowCount(), 2);
        QCOMPARE(asking(second), "operator 0");
    }

    void aFirstPasswordIsUsedAfterInitialisation_data()
    {
        const auto row = dataTable<AccountList::Keeping, QString, QString, QString>(
            {"keeping", "nextSearch", "byDefault", "stored"});
        row("for the devices", AccountList::ForDevices, "admin 0", "admin 0", "admin");
        row("as the default", AccountList::AsDefault, "admin 0", "admin 2", "");
        row("not", AccountList::Unkept, "admin 2", "admin 0", "");
    }

    void aFirstPasswordIsUsedAfterInitialisation()
    {
        QFETCH(AccountList::Keeping, keeping);
        // The stored account is outdated: the device has been reset.
        QCOMPARE(m_list->put({}, "Old", "admin", "old-1"), "");
        QCOMPARE(m_list->select({newMac}, "Old"), "");
        const DeviceStep step = m_factory->backEnd("dh")->initialisationStep(newMac, "admin", "first-1");
        QCOMPARE(step(StepControl()).result, 0);
        QCOMPARE(asking(fresh), "admin 0"); // immediately, regardless of the storage
        QCOMPARE(m_list->keepNew({newMac}, keeping), "");
        QCOMPARE(asking(fresh), "admin 0");
        start();
        QTEST(asking(fresh), "nextSearch");
        QTEST(asking(first), "byDefault");
        const std::optional<StoredAccount> stored = m_accounts->accountOf({newMac});
        QTEST(stored ? stored->name : QString(), "stored");
        QVERIFY(!fileContents(path()).contains("first-1"));
    }

    void aChangedPasswordIsUsedAfterTheChange()
    {
        const QVariantMap old = {{"password", "secret1"}};
        const QVariantMap changed = {{"password", "second-2"}};
        QCOMPARE(m_factory->backEnd("dh")->systemStep("loginCheck", old, first)(StepControl()).result, -1);
        QCOMPARE(m_factory->backEnd("dh")->systemStep("modifyPassword", changed, first)(StepControl()).result,
                 0);
        m_factory->systemConfig("dh", "cancelLogin", {}, {});
        QCOMPARE(asking(first), "admin 0");
        const CAuthor author;
        const QString folder = m_folder.filePath("fav");
        QVERIFY(QDir().mkpath(folder));
        const auto save = [&](const char *type, const char *address, const char *account) {
            author.saveTextAsJson(folder, type, address, "37777", account, author.AesEncrypt("secret1"),
                                  "Door");
        };
        save("0", "192.168.1.10", "admin");
        save("0", "192.168.1.11", "admin");
        m_list->setFavourites(folder);
        QCOMPARE(m_list->keepNew({first}, AccountList::ForDevices), "");
        const QVariantMap favourites = author.readJsonFilesFromFolder(folder);
        QCOMPARE(favourites["192.168.1.10_37777.json"].toStringList(),
                 QStringList({"0", "192.168.1.10", "37777", "admin", author.AesEncrypt("second-2"), "Door"}));
        QCOMPARE(favourites["192.168.1.11_37777.json"].toStringList().at(4), author.AesEncrypt("secret1"));
        save("0", "192.168.1.10", "guest");
        QCOMPARE(m_list->keepNew({first}, AccountList::ForDevices), "");
        QCOMPARE(author.readJsonFilesFromFolder(folder)["192.168.1.10_37777.json"].toStringList().at(4),
                 author.AesEncrypt("secret1"));
        start();
        QCOMPARE(asking(first), "admin 0");
        QCOMPARE(m_default.password, "secret1");
    }

    void aFullStoreLosesNoPassword()
    {
        for (int number = 0; number < AccountStore::maximumAccounts; ++number)
            QCOMPARE(m_list->put({}, QString::number(number), "x", "y"), "");
        const DeviceStep step = m_factory->backEnd("dh")->initialisationStep(newMac, "admin", "first-1");
        QCOMPARE(step(StepControl()).result, 0);
        QVERIFY(!m_list->keepNew({newMac}, AccountList::ForDevices).isEmpty());
        QCOMPARE(asking(fresh), "admin 0"); // the row still has the password
    }

    void noStoredPasswordIsExported()
    {
        QCOMPARE(m_list->put({}, "Site", "operator", "other-1"), "");
        QCOMPARE(m_list->select({secondMac}, "Site"), "");
        QVERIFY(m_factory->exportDevice("dh", m_folder.path(), {firstMac, secondMac}, "device.csv"));
        const QByteArray text = fileContents(m_folder.filePath("device.csv"));
        QVERIFY(text.contains(",operator,,") && !text.contains("other-1"));
        const QVariantMap detail = m_factory->getDeviceDetail("dh", secondMac);
        QCOMPARE(detail.value("username").toString(), "operator");
        QVERIFY(detail.key("other-1").isEmpty());
        for (int row = 0; row < m_list->rowCount(); ++row)
            QVERIFY(m_list->get(row).key("other-1").isEmpty());
    }

    void aDeviceWithoutIdentityKeepsItsAccountUntilTheNextSearch()
    {
        auto device = sceneDevice("", "192.168.1.20");
        device.accounts = {{"operator", "other-1"}};
        openSite({device});
        start();
        const QString ipport = "192.168.1.20:37777";
        QCOMPARE(m_list->put({}, "Site", "operator", "other-1"), "");
        QCOMPARE(m_list->countUnidentified({ipport}), 1);
        QCOMPARE(m_list->select({ipport}, "Site"), "");
        QCOMPARE(asking(ipport), "operator 0");
        search();
        QCOMPARE(asking(ipport), "admin 1");
    }
};

QTEST_GUILESS_MAIN(TestAccounts)
#include "tst_accounts.moc"
