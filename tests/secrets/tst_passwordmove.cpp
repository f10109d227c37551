// The passwords of the settings and of favourites, in their files and in the secret service.
#include "app/localconfig.h"
#include "favourites/author.h"
#include "favourites/passwordmove.h"
#include "secrets/secretvault.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/secrets/memorysecretstore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// A copy of the application that uses a service.
class Copy
{
public:
    Copy(const QString &folder, const std::shared_ptr<MemoryService> &service, bool isHeld = false)
        : store(std::make_shared<MemorySecretStore>(service)), config(folder)
    {
        if (isHeld)
            store->hold();
        vault = std::make_unique<SecretVault>(store);
        config.setVault(*vault);
        move = std::make_unique<PasswordMove>(*vault, folder + "/fav");
        vault->awaitLoaded(std::chrono::milliseconds(isHeld ? 1 : 10'000));
    }

    std::shared_ptr<MemorySecretStore> store;
    CLocalConfig config;
    std::unique_ptr<SecretVault> vault;
    std::unique_ptr<PasswordMove> move;
};

} // namespace

class TestPasswordMove : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<MemoryService> m_service;
    const CAuthor m_author;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString settings() const { return path("LocalConfig.ini"); }
    QString favourite() const { return path("fav/10.0.0.1_80.json"); }

    void saveFavourite(const QString &password, const QString &note = {}) const
    {
        m_author.saveTextAsJson(path("fav/"), "0", "10.0.0.1", "80", "admin", m_author.AesEncrypt(password),
                                note);
    }

    /// The password of the favourite as the window reads it.
    QString favouritePassword() const
    {
        const QVariantMap favourites = m_author.readJsonFilesFromFolder(path("fav/"));
        return m_author.AesDecrypt(favourites.value("10.0.0.1_80.json").toStringList().value(4));
    }

    /// The passwords of the settings and of the favourite that are in the files.
    QStringList inFiles() const
    {
        static const QRegularExpression setting("(?m)^pass=(.*)$");
        static const QRegularExpression field("\"password\": \"([^\"]*)\"");
        const QString cipher = field.match(fileContents(favourite())).captured(1);
        return {setting.match(fileContents(settings())).captured(1), m_author.AesDecrypt(cipher)};
    }

    QHash<QString, QString> inService() const
    {
        const QMutexLocker lock(&m_service->mutex);
        return m_service->values;
    }

    QStringList calls() const
    {
        const QMutexLocker lock(&m_service->mutex);
        return m_service->calls;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_service = std::make_shared<MemoryService>();
        CLocalConfig(m_folder->path()).setSearchConfigPass("default1");
        saveFavourite("door1");
    }

    void passwordsOfTheFilesAreMoved()
    {
        const QByteArray before = fileContents(favourite());
        {
            const Copy copy(m_folder->path(), m_service);
            QTRY_COMPARE(inFiles(), QStringList({"", ""}));
            QCOMPARE(copy.config.getSearchConfigPass(), "default1");
            QCOMPARE(favouritePassword(), "door1");
            QCOMPARE(copy.vault->problem(), "");
        }
        QCOMPARE(inService(), (QHash<QString, QString>{{settings(), "default1"}, {favourite(), "door1"}}));
        // Only the password has changed.
        QCOMPARE(
            fileContents(favourite())
                .replace("\"password\": \"", "\"password\": \"" + m_author.AesEncrypt("door1").toLatin1()),
            before);

        const Copy restarted(m_folder->path(), m_service);
        QCOMPARE(restarted.config.getSearchConfigPass(), "default1");
        QCOMPARE(favouritePassword(), "door1");
    }

    void newPasswordsReplaceThoseOfTheService()
    {
        Copy copy(m_folder->path(), m_service);
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        copy.config.setSearchConfigPass("default2");
        saveFavourite("door2");
        QCOMPARE(copy.config.getSearchConfigPass(), "default2"); // at once
        QCOMPARE(favouritePassword(), "door2");
        QTRY_COMPARE(inService(),
                     (QHash<QString, QString>{{settings(), "default2"}, {favourite(), "door2"}}));
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));

        // The password itself is unchanged.
        const QStringList before = calls();
        saveFavourite("door2", "a note");
        copy.config.setSearchConfigPass("default2");
        QCOMPARE(inFiles(), QStringList({"", ""}));
        QCOMPARE(calls(), before);
        QCOMPARE(favouritePassword(), "door2");

        copy.config.setSearchConfigPass("");
        QCOMPARE(copy.config.getSearchConfigPass(), "");
        QTRY_VERIFY(!inService().contains(settings()));
    }

    void passwordsLeaveTheFilesAtTheEnd()
    {
        Copy copy(m_folder->path(), m_service);
        saveFavourite("door2");
        copy.vault->finish();
        QCOMPARE(inFiles(), QStringList({"", ""}));
        QCOMPARE(inService(), (QHash<QString, QString>{{settings(), "default1"}, {favourite(), "door2"}}));
    }

    void aPasswordThatChangesMeanwhileIsNotLost()
    {
        Copy copy(m_folder->path(), m_service);
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        const QSignalSpy problems(copy.vault.get(), &SecretVault::problemChanged);
        m_service->refused = "a2";
        copy.store->hold();
        for (const char *password : {"a1", "a2"}) {
            copy.config.setSearchConfigPass(password);
            saveFavourite(password);
        }
        copy.store->release();
        QTRY_COMPARE(problems.count(), 2);
        QCOMPARE(inService(), (QHash<QString, QString>{{settings(), "a1"}, {favourite(), "a1"}}));
        QCOMPARE(inFiles(), QStringList({"a2", "a2"}));
        QCOMPARE(copy.config.getSearchConfigPass(), "a2");
        QCOMPARE(favouritePassword(), "a2");
    }

    void aDeletedFavouriteLeavesNoPassword()
    {
        const Copy copy(m_folder->path(), m_service);
        QTRY_VERIFY(inService().contains(favourite()));
        QVERIFY(m_author.deleteFile(favourite()));
        QTRY_VERIFY(!inService().contains(favourite()));
        QVERIFY(inService().contains(settings()));
        QCOMPARE(copy.vault->problem(), "");
    }

    void aServiceThatRefusesLeavesThePasswordsInTheFiles()
    {
        m_service->storeProblem = {.kind = SecretProblem::Failed, .detail = "disk full"};
        Copy copy(m_folder->path(), m_service);
        QTRY_VERIFY(copy.vault->problem().contains("disk full"));
        copy.config.setSearchConfigPass("default2");
        saveFavourite("door2");
        QTRY_COMPARE(calls().size(), 4);
        QCOMPARE(inFiles(), QStringList({"default2", "door2"}));
        QCOMPARE(copy.config.getSearchConfigPass(), "default2");
        QCOMPARE(favouritePassword(), "door2");
    }

    void anUnavailableServiceLosesNothing_data()
    {
        const auto row = dataTable<SecretProblem::Kind>({"kind"});
        row("locked", SecretProblem::Locked);
        row("no response", SecretProblem::NoResponse);
        row("absent", SecretProblem::Absent);
    }

    void anUnavailableServiceLosesNothing()
    {
        QFETCH(SecretProblem::Kind, kind);
        {
            const Copy copy(m_folder->path(), m_service);
            QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        }
        const QHash<QString, QString> before = inService();
        m_service->readProblem = {.kind = kind};
        {
            Copy copy(m_folder->path(), m_service);
            QVERIFY(copy.vault->problem().contains(m_service->readProblem.text()));
            QVERIFY(copy.config.lacksPassword());
            QCOMPARE(copy.config.getSearchConfigPass(), "");
            // The dialogs write all their values, and the window writes a favourite with a changed note.
            copy.config.setSearchConfigPass("");
            m_author.saveTextAsJson(path("fav"), "0", "10.0.0.1", "80", "admin", "", "a note");
            QCOMPARE(inFiles(), QStringList({"", ""}));
            QCOMPARE(inService(), before);
            saveFavourite("door2");
            QCOMPARE(favouritePassword(), "door2");
            QCOMPARE(inFiles(), QStringList({"", "door2"}));
        }
        m_service->readProblem = {};
        const Copy copy(m_folder->path(), m_service);
        QCOMPARE(copy.config.getSearchConfigPass(), "default1");
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        QCOMPARE(favouritePassword(), "door2"); // that of the file is newer
    }

    void aHostWithoutAServiceReportsNoProblem()
    {
        m_service->readProblem = {.kind = SecretProblem::Absent};
        Copy copy(m_folder->path(), m_service);
        copy.config.setSearchConfigPass("default2");
        QCOMPARE(inFiles(), QStringList({"default2", "door1"}));
        QVERIFY(m_author.deleteFile(favourite()));
        QCOMPARE(copy.vault->problem(), "");
    }

    void aServiceThatDoesNotRespondDoesNotBlockTheWindow()
    {
        QElapsedTimer timer;
        timer.start();
        {
            Copy copy(m_folder->path(), m_service, true);
            QCOMPARE(copy.vault->state(), SecretVault::State::Loading);
            copy.config.setSearchConfigPass("default2");
            QCOMPARE(copy.config.getSearchConfigPass(), "default2");
            QCOMPARE(favouritePassword(), "door1");
        }
        QVERIFY(timer.elapsed() < 1500); // the limits at the end are longer
        QCOMPARE(inFiles(), QStringList({"default2", "door1"}));
    }

    void passwordsAreThereAfterALateUnlock()
    {
        {
            const Copy copy(m_folder->path(), m_service);
            QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        }
        Copy copy(m_folder->path(), m_service, true);
        const QSignalSpy loaded(copy.vault.get(), &SecretVault::loaded);
        QVERIFY(copy.config.lacksPassword());
        copy.store->release();
        QTRY_COMPARE(loaded.count(), 1);
        QCOMPARE(copy.config.getSearchConfigPass(), "default1");
        QCOMPARE(favouritePassword(), "door1");
    }

    void aPasswordThatCannotBeRemovedIsReported()
    {
        m_service->removeProblem = {.kind = SecretProblem::Locked};
        const Copy copy(m_folder->path(), m_service);
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        QVERIFY(m_author.deleteFile(favourite()));
        QTRY_VERIFY(copy.vault->problem().contains(m_service->removeProblem.text()));
    }

    /// The lock for one window applies to one host; folders of users may be shared between hosts.
    void twoCopiesMoveTheSamePasswords()
    {
        CLocalConfig other(m_folder->path());
        SecretVault vault(std::make_shared<MemorySecretStore>(m_service));
        other.setVault(vault);
        Copy copy(m_folder->path(), m_service);
        vault.awaitLoaded(std::chrono::seconds(10));
        QTRY_COMPARE(inFiles(), QStringList({"", ""}));
        QCOMPARE(inService(), (QHash<QString, QString>{{settings(), "default1"}, {favourite(), "door1"}}));
    }
};

QTEST_GUILESS_MAIN(TestPasswordMove)
#include "tst_passwordmove.moc"
