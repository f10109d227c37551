#include "app/languagechoice.h"
#include "app/languages.h"
#include "app/localconfig.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <unistd.h>

namespace {

void write(const QString &path, const QByteArray &content = "x")
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QVERIFY(writeFile(path, content));
}

} // namespace

class TestLocalConfig : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QStringList m_opened; ///< documents that the desktop was asked to open

    QString path(const QString &name) const { return m_directory->path() + '/' + name; }

    /// All settings, separated by bars.
    static QString settingsOf(const CLocalConfig &config)
    {
        return QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8")
            .arg(config.getLanguage())
            .arg(config.getSearchConfigLocalDomain())
            .arg(config.getSearchConfigOtherDomain())
            .arg(config.getSearchConfigStartIP(), config.getSearchConfigEndIP(),
                 config.getSearchConfigUsrename(), config.getSearchConfigPass())
            .arg(config.searchLogsIn());
    }

public Q_SLOTS:
    void openDocument(const QUrl &url)
    {
        m_opened.append(QDir(m_directory->path()).relativeFilePath(url.toLocalFile()));
    }

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_opened.clear();
        QDesktopServices::setUrlHandler("file", this, "openDocument");
    }

    void cleanup() { QDesktopServices::unsetUrlHandler("file"); }

    void settingsAreStoredImmediatelyAndReadAgain()
    {
        CLocalConfig config(m_directory->path());
        const QString password = "a,b;\"c\" = 密码\\";
        config.setSearchConfigPass(password);
        config.setSearchConfigStartIP("10.0.0.1");
        config.setSearchConfigEndIP("10.0.0.9");
        config.setSearchConfigUsername("root");
        config.setSearchConfigLocalDomain(0);
        config.setSearchConfigOtherDomain(1);
        config.setSearchLogsIn(true);
        config.setLanguage("de_DE");

        CLocalConfig other(m_directory->path());
        QCOMPARE(settingsOf(other), "de_DE|0|1|10.0.0.1|10.0.0.9|root|" + password + "|1");
        other.setLanguage("fr_FR");
        QCOMPARE(config.getLanguage(), "fr_FR");
        QVERIFY(!QFile::permissions(path("LocalConfig.ini"))
                     .testAnyFlags(QFile::ReadGroup | QFile::ReadOther)); // it has a password
    }

    /// In a memory file system two changes can have the same modification time.
    void changesWithTheSameTimeAreRead()
    {
        const QTemporaryDir memory("/dev/shm/localconfig-XXXXXX");
        if (!memory.isValid())
            QSKIP("there is no file system in memory"); // needed for equal modification times
        CLocalConfig config(memory.path());
        for (const char *language : {"fr_FR", "de_DE", "es_ES", "it_IT", "nl_NL"}) {
            config.setLanguage(language);
            QCOMPARE(config.getLanguage(), language);
        }
    }

    /// A process that ends during a write leaves the old file, which is observed through a second link.
    void aChangeReplacesTheFile()
    {
        CLocalConfig config(m_directory->path());
        QCOMPARE(::link(qPrintable(path("LocalConfig.ini")), qPrintable(path("old"))), 0);
        config.setLanguage("de_DE");
        QCOMPARE(QSettings(path("old"), QSettings::IniFormat).value("language/name").toString(), "");
        QCOMPARE(config.getLanguage(), "de_DE");
    }

    void aMissingDocumentIsReported()
    {
        CLocalConfig config(m_directory->path());
        const QSignalSpy requested(&config, &CLocalConfig::documentRequested);
        config.OpenHelpFile();
        const QString manual = "documents/manual_en_US.pdf";
        QCOMPARE(requested.value(0), QVariantList({path(manual), false}));
        QVERIFY(QDir(m_directory->path()).mkdir("documents"));
        write(path(manual), "%PDF");
        config.OpenHelpFile();
        QCOMPARE(requested.value(1), QVariantList({path(manual), true}));
        QCOMPARE(m_opened, QStringList(manual));
    }

    void missingKeysAreNotAddedToAnExistingFile()
    {
        write(path("LocalConfig.ini"), "[searchConfig]\nendIP=10.0.0.9\n");
        const CLocalConfig config(m_directory->path());
        QCOMPARE(settingsOf(config), "|0|0||10.0.0.9|||0");
        QCOMPARE(fileContents(path("LocalConfig.ini")), "[searchConfig]\nendIP=10.0.0.9\n");
    }

    void invalidSettingsReadAsEmptyAndKeepTheOthers_data()
    {
        const auto row = dataTable<QByteArray>({"content"});
        row("junk around a key", QByteArray("\x00\xFF]]junk\n[searchConfig]\n=\nendIP=10.0.0.9\n%%", 44));
        row("wrong types", QByteArray("[searchConfig]\nlocalDomain=yes\nstartIP=@Invalid()\n"
                                      "otherDomain=1e9\nendIP=10.0.0.9\n[language]\nname=@Size(1 2)\n"));
    }

    void invalidSettingsReadAsEmptyAndKeepTheOthers()
    {
        QFETCH(QByteArray, content);
        write(path("LocalConfig.ini"), content);
        CLocalConfig config(m_directory->path());
        QCOMPARE(settingsOf(config), "|0|0||10.0.0.9|||0");
        config.setLanguage("en_US");
        QCOMPARE(settingsOf(config), "en_US|0|0||10.0.0.9|||0");
    }

    void theNumberOfParallelUpgradesIsLimited_data()
    {
        const auto row = dataTable<QByteArray, int>({"value", "parallel"});
        row("minimum", QByteArray("1"), 1);
        row("maximum", QByteArray("16"), 16);
        row("none", QByteArray(""), 4);
        row("zero", QByteArray("0"), 4);
        row("too many", QByteArray("17"), 4);
        row("does not fit", QByteArray("4294967297"), 4);
    }

    void theNumberOfParallelUpgradesIsLimited()
    {
        QFETCH(QByteArray, value);
        QCOMPARE(CLocalConfig(m_directory->path()).parallelUpgrades(), 4);
        write(path("LocalConfig.ini"), "[upgradeConfig]\natOnce=" + value + '\n');
        QTEST(CLocalConfig(m_directory->path()).parallelUpgrades(), "parallel");
        CLocalConfig(m_directory->path()).setParallelUpgrades(7);
        QCOMPARE(CLocalConfig(m_directory->path()).parallelUpgrades(), 7);
    }

    /// The disk has room for the old settings, but not for the new ones.
    void aFullDiskKeepsTheStoredSettings()
    {
        CLocalConfig config(m_directory->path());
        config.setLanguage("de_DE");
        const QByteArray before = fileContents(path("LocalConfig.ini"));
        {
            const FileSizeLimit limit(static_cast<rlim_t>(before.size()) + 10);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot write .* the draft is incomplete"));
            config.setSearchConfigPass(QString(100, 'p'));
        }
        QCOMPARE(fileContents(path("LocalConfig.ini")), before);
        QCOMPARE(config.getSearchConfigPass(), "739164");
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList("LocalConfig.ini"));
    }

    void languagesWithoutAFileAreNotOffered_data()
    {
        const auto row = dataTable<QStringList, QVariantList>({"present", "removed"});
        row("Chinese and English", QStringList{"zh_CN", "en_US"},
            QVariantList{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
        row("odd codes", QStringList{"JP_US", "sv_SV"}, QVariantList{0, 1, 2, 4, 5, 6, 7, 8, 9, 10, 12, 13});
        row("no folder", QStringList(), QVariantList{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    }

    void languagesWithoutAFileAreNotOffered()
    {
        QFETCH(QStringList, present);
        for (const QString &code : present)
            write(path("language/" + code + ".qm"));
        const CLocalConfig config(m_directory->path());
        QTEST(config.getRemoveLanguageList(), "removed");
        QStringList files;
        for (const QString &file : config.languageFiles())
            files.append(QFileInfo(file).completeBaseName());
        files.sort();
        present.sort();
        QCOMPARE(files, present);
    }

    void aFirstStartUsesTheSystemsLanguage_data()
    {
        const auto row = dataTable<QString, QLocale::Language, QString>({"stored", "system", "code"});
        row("Chinese", "", QLocale::Chinese, "zh_CN");
        row("Swedish", "", QLocale::Swedish, "sv_SV");
        row("Catalan is a choice of the user only", "", QLocale::Catalan, "en_US");
        row("no translation file", "", QLocale::German, "en_US");
        row("stored", "fr_FR", QLocale::Chinese, "fr_FR");
        row("stored, its file lost", "de_DE", QLocale::Chinese, "de_DE");
    }

    void aFirstStartUsesTheSystemsLanguage()
    {
        QFETCH(QString, stored);
        QFETCH(QLocale::Language, system);
        QFETCH(QString, code);
        for (const QLatin1StringView present : languageCodes) {
            if (present != QLatin1String("de_DE"))
                write(path("language/" + QString(present) + ".qm"));
        }
        CLocalConfig config(m_directory->path());
        config.setLanguage(stored);
        QCOMPARE(resolveLanguage(config, system), code);
        QCOMPARE(config.getLanguage(), code);
    }

    void theLockIsHeldByOneRunningProcess()
    {
        QProcess first;
        const auto start = [](QProcess &process) {
            process.start(QCoreApplication::applicationDirPath() + "/lockholder", QStringList());
            QVERIFY(process.waitForReadyRead());
        };
        start(first);
        QCOMPARE(first.readLine().trimmed(), "holding");

        CLocalConfig config(m_directory->path());
        QVERIFY(!config.acquireInstanceLock());
        QVERIFY(
            !config.acquireInstanceLock()); // a failed attempt does not release the lock of a running process
        QProcess second;
        start(second);
        QCOMPARE(second.readLine().trimmed(), "refused");

        first.kill(); // leaves its shared memory segment behind
        QVERIFY(first.waitForFinished());
        QVERIFY(config.acquireInstanceLock());
        QProcess third;
        start(third);
        QCOMPARE(third.readLine().trimmed(), "refused");
        for (QProcess *process : {&second, &third}) {
            process->kill();
            process->waitForFinished();
        }
    }
};

QTEST_MAIN(TestLocalConfig)
#include "tst_localconfig.moc"
