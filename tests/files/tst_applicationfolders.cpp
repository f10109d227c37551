#include "files/applicationfolders.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QDir>
#include <QTemporaryDir>

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Removes the capability of root to write into every folder, until the process ends.
void respectPermissions()
{
    __user_cap_header_struct header = {.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
    QCOMPARE(::syscall(SYS_capget, &header, data), 0);
    data[0].effective &= ~(1U << CAP_DAC_OVERRIDE);
    data[0].permitted &= ~(1U << CAP_DAC_OVERRIDE);
    QCOMPARE(::syscall(SYS_capset, &header, data), 0);
}

} // namespace

class TestApplicationFolders : public QObject
{
    Q_OBJECT
    const QTemporaryDir m_root;

    QString path(const QString &name) const { return m_root.filePath(name); }

private Q_SLOTS:
    void initTestCase()
    {
        respectPermissions();
        qputenv("HOME", QFile::encodeName(path("home")));
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qunsetenv(variable);
        QVERIFY(QDir().mkpath(path("home/.config")));
        QVERIFY(writeFile(path("home/.config/user-dirs.dirs"),
                          "XDG_PICTURES_DIR=\"$HOME/图片\"\nXDG_DOCUMENTS_DIR=\"$HOME/文档\"\n"));
        for (const char *folder : {"writable", "marked", "protected", "work"})
            QVERIFY(QDir().mkpath(path(folder)));
        QVERIFY(writeFile(path("marked/installed.txt"), ""));
        QCOMPARE(::chmod(qPrintable(path("protected")), 0555), 0);
        QVERIFY(QDir::setCurrent(path("work")));
    }

    void theFoldersFollowTheCopy_data()
    {
        const auto row = dataTable<QStringList>({"expected"});
        const QStringList ofUser = {"home/.config/configtools",      "home/.config/configtools/p2p.ini",
                                    "home/.local/share/configtools", "home/.local/share/configtools/fav/",
                                    "home/图片/ConfigTools",         "home/文档/ConfigTools"};
        row("writable", {"writable", "work/p2p.ini", "writable", "writable/fav/", "work/snap", "writable",
                         "work/language/en_US.qm"});
        row("marked", ofUser + QStringList("marked/language/en_US.qm"));
        row("protected", ofUser + QStringList("protected/language/en_US.qm"));
    }

    void theFoldersFollowTheCopy()
    {
        const ApplicationFolders folders(path(QTest::currentDataTag()));
        QStringList relative;
        for (const QString &folder :
             {folders.configuration(), folders.portAgentSettings(), folders.data(), folders.favourites(),
              folders.snapshots(), folders.responses(), folders.translation("en_US")}) {
            const QString ending = folder.endsWith(u'/') ? QStringLiteral("/") : QString();
            relative.append(
                QDir(m_root.path()).relativeFilePath(QDir().absoluteFilePath(QDir::cleanPath(folder))) +
                ending);
        }
        QTEST(relative, "expected");
    }

    /// They contain passwords.
    void createdFoldersAreReadableByTheUserOnly()
    {
        ApplicationFolders(path("writable")).createMissing();
        QVERIFY(QDir(path("writable")).isEmpty() && !QFile::exists(path("home/.local")));
        ApplicationFolders(path("protected")).createMissing();
        for (const char *folder : {"home/.config/configtools", "home/.local/share/configtools"}) {
            struct stat state = {};
            QCOMPARE(::stat(qPrintable(path(folder)), &state), 0);
            QCOMPARE(state.st_mode & 0777, 0700);
        }
    }
};

QTEST_GUILESS_MAIN(TestApplicationFolders)
#include "tst_applicationfolders.moc"
