// The stored accounts of the user in a file.
#include "favourites/accountstore.h"
#include "files/filereplacement.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

const StoredAccount gate = {.name = "Gate", .account = "admin", .password = "gate-1"};
const StoredAccount hall = {.name = "Hall", .account = "operator", .password = "hall-1"};

/// "Gate admin gate-1, ..." in the order of the store.
QString listed(const AccountStore &store)
{
    QStringList texts;
    for (const StoredAccount &account : store.accounts())
        texts.append(account.name + ' ' + account.account + ' ' + account.password);
    return texts.join(", ");
}

QString nameOf(const AccountStore &store, const QStringList &identities)
{
    const std::optional<StoredAccount> account = store.accountOf(identities);
    return account ? account->name : QString("none");
}

} // namespace

class TestAccountStore : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        m_path = m_folder.filePath("accounts.json");
        QFile::remove(m_path);
    }

    void accountsAreStoredPersistently()
    {
        {
            AccountStore store(m_path);
            QCOMPARE(store.put({}, hall), "");
            QCOMPARE(store.put({}, gate), "");
            QCOMPARE(store.assign({{"m1"}, {"m2", "uuid:2"}}, "Gate"), "");
            QCOMPARE(store.assign({{"uuid:3"}}, "Hall"), "");
            QCOMPARE(store.put("Gate", {.name = "West", .account = "admin", .password = "gate-2"}), "");
        }
        AccountStore store(m_path);
        QCOMPARE(listed(store), "Hall operator hall-1, West admin gate-2");
        QCOMPARE(nameOf(store, {"m1"}), "West"); // its devices follow an account that is renamed
        QCOMPARE(nameOf(store, {"m9", "uuid:3"}), "Hall");
        QCOMPARE(nameOf(store, {"uuid:2"}), "none"); // the more reliable identity is known
        QCOMPARE(store.deviceCounts(), (QHash<QString, int>{{"West", 2}, {"Hall", 1}}));
        const QByteArray text = fileContents(m_path);
        QVERIFY(!text.contains("hall-1") && !text.contains("gate-"));
        QVERIFY(!QFile::permissions(m_path).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));

        QCOMPARE(store.assign({{"m2"}}, {}), "");
        QCOMPARE(store.remove("Hall"), "");
        AccountStore again(m_path);
        QCOMPARE(listed(again), "West admin gate-2");
        QCOMPARE(again.deviceCounts(), (QHash<QString, int>{{"West", 1}}));
    }

    /// Devices with the same account share one entry, and no entry replaces another of the same name.
    void aNewPasswordIsKept()
    {
        AccountStore store(m_path);
        QCOMPARE(store.keep({{"m1"}, {"m2"}}, "admin", "first-1"), "");
        QCOMPARE(store.keep({{"m3"}}, "admin", "first-1"), "");
        QCOMPARE(store.keep({{"m2"}}, "admin", "second-2"), "");
        QCOMPARE(listed(store), "admin admin first-1, admin 2 admin second-2");
        QCOMPARE(store.deviceCounts(), (QHash<QString, int>{{"admin", 2}, {"admin 2", 1}}));
    }

    void unusableAccountsAreRefused_data()
    {
        const auto row = dataTable<StoredAccount>({"account"});
        row("name of another", {.name = "Hall", .account = "admin", .password = "x"});
        row("no name", {.name = "", .account = "admin", .password = "x"});
        row("no account", {.name = "A", .account = "", .password = "x"});
        row("no password", {.name = "A", .account = "admin", .password = ""});
        row("long", {.name = "A", .account = "admin", .password = QString(64, 'x')});
    }

    void unusableAccountsAreRefused()
    {
        QFETCH(StoredAccount, account);
        AccountStore store(m_path);
        QCOMPARE(store.put({}, hall), "");
        QCOMPARE(store.put({}, gate), "");
        const QString before = listed(store);
        QVERIFY(!store.put("Gate", account).isEmpty());
        QVERIFY(!store.put({}, account).isEmpty());
        QVERIFY(!store.assign({{"m1"}}, "Attic").isEmpty());
        QCOMPARE(listed(store), before);
    }

    void aDamagedFileIsKeptAndGivesNoAccount_data()
    {
        const auto row = dataTable<QByteArray>({"text"});
        const QByteArray account = "{'name':'Gate','username':'admin','password':'nqDuBsgMB/t7C1f5Yy2bKQ=='}";
        row("truncated", "{'accounts':[" + account);
        row("another kind", "{'accounts':{},'devices':{}}");
        row("empty", "");
        row("no cipher",
            "{'accounts':[{'name':'Gate','username':'admin','password':'gate-1'}],'devices':{}}");
        row("device of no account", "{'accounts':[],'devices':{'m1':'Gate'}}");
        row("device without a name", "{'accounts':[],'devices':{'':''}}");
    }

    void aDamagedFileIsKeptAndGivesNoAccount()
    {
        QFETCH(QByteArray, text);
        text.replace('\'', '"');
        QCOMPARE(replaceFile(m_path, text), "");
        AccountStore store(m_path);
        QVERIFY(store.problem().contains(m_path));
        QVERIFY(store.accounts().isEmpty());
        QCOMPARE(fileContents(m_path), text);
        QCOMPARE(store.keep({{"m1"}}, "admin", "first-1"), "");
        QVERIFY(store.problem().isEmpty());
        const QStringList kept = QDir(m_folder.path()).entryList({"*.damaged*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(fileContents(m_folder.filePath(kept.constFirst())), text);
        QVERIFY(QFile::remove(m_folder.filePath(kept.constFirst())));
        QCOMPARE(nameOf(AccountStore(m_path), {"m1"}), "admin");
    }

    /// The user may delete the damaged file.
    void aDamagedFileThatIsRemovedIsReplaced()
    {
        QCOMPARE(replaceFile(m_path, "{"), "");
        AccountStore store(m_path);
        QVERIFY(!store.problem().isEmpty() && QFile::remove(m_path));
        QCOMPARE(store.put({}, gate), "");
        QCOMPARE(listed(AccountStore(m_path)), "Gate admin gate-1");
    }

    /// The file may contain accounts, so it is not replaced.
    void aFileThatCannotBeOpenedIsNotWritten()
    {
        QCOMPARE(AccountStore(m_path).put({}, gate), "");
        const QByteArray stored = fileContents(m_path);
        QVERIFY(QFile::remove(m_path) && QDir().mkpath(m_path)); // also for an administrator
        AccountStore store(m_path);
        QVERIFY(store.problem().contains(m_path));
        QCOMPARE(store.put({}, hall), store.problem());
        QCOMPARE(store.keep({{"m1"}}, "admin", "first-1"), store.problem());
        QVERIFY(store.accounts().isEmpty());
        QVERIFY(QDir(m_folder.path()).entryList({"*.damaged*"}).isEmpty());

        QVERIFY(QDir().rmdir(m_path));
        QCOMPARE(replaceFile(m_path, stored), ""); // it can be read again
        QCOMPARE(store.put({}, hall), "");
        QCOMPARE(store.problem(), "");
        QCOMPARE(listed(AccountStore(m_path)), "Gate admin gate-1, Hall operator hall-1");
    }

    void aFullDiskChangesNothing()
    {
        AccountStore store(m_path);
        QCOMPARE(store.put({}, gate), "");
        const QByteArray before = fileContents(m_path);
        {
            const FileSizeLimit limit(10);
            QVERIFY(!store.keep({{"m1"}}, "admin", "first-1").isEmpty());
        }
        QCOMPARE(listed(store), "Gate admin gate-1");
        QCOMPARE(nameOf(store, {"m1"}), "none");
        QCOMPARE(fileContents(m_path), before);
    }
};

QTEST_GUILESS_MAIN(TestAccountStore)
#include "tst_accountstore.moc"
