#include "files/filereplacement.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

class TestFileReplacement : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;

private Q_SLOTS:
    void aKilledProcessLeavesACompleteFile()
    {
        const QString path = m_folder.filePath("killed");
        const QByteArray first(300'000, '1');
        const QByteArray second(200'000, '2');
        QCOMPARE(replaceFile(path, first), "");
        constexpr int kills = 60;
        for (int kill = 0; kill < kills; ++kill) {
            const pid_t child = fork();
            if (child == 0) {
                while (replaceFile(path, second).isEmpty() && replaceFile(path, first).isEmpty()) {
                }
                _exit(1);
            }
            QVERIFY(child > 0);
            QTest::qWait(kill % 7); // a different moment of the save each time
            ::kill(child, SIGKILL);
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QVERIFY(WIFSIGNALED(status));
            const QByteArray left = fileContents(path);
            QVERIFY2(left == first || left == second, qPrintable(QString::number(left.size())));
        }
    }

    void aFullDiskKeepsTheOldFile()
    {
        const QString path = m_folder.filePath("full");
        QCOMPARE(replaceFile(path, "old"), "");
        const QStringList before = QDir(m_folder.path()).entryList(QDir::Files);
        {
            const FileSizeLimit limit(1000);
            QCOMPARE(replaceFile(path, QByteArray(1001, 'n')), "File too large");
        }
        QCOMPARE(fileContents(path), "old");
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), before);
    }

    void linksAndPermissionsAreKept()
    {
        const QString path = m_folder.filePath("private");
        const QString link = m_folder.filePath("link");
        QCOMPARE(replaceFile(path, "old"), "");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::link(path, link));
        QCOMPARE(replaceFile(link, "new"), "");
        QVERIFY(QFileInfo(link).isSymbolicLink());
        QCOMPARE(fileContents(path), "new");
        QVERIFY(!QFile::permissions(path).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));

        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        QCOMPARE(replaceFile(link, "secret", FileReaders::Owner), "");
        QCOMPARE(replaceFile(m_folder.filePath("new"), "secret", FileReaders::Owner), "");
        for (const QString &file : {path, m_folder.filePath("new")})
            QVERIFY(!QFile::permissions(file).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));

        QVERIFY(!replaceFile(m_folder.path(), "x").isEmpty());
        QVERIFY(QFile::link("/dev/null", m_folder.filePath("device")));
        QVERIFY(!replaceFile(m_folder.filePath("device"), "x").isEmpty());
        QVERIFY(!replaceFile(m_folder.filePath("none/file"), "x").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFileReplacement)
#include "tst_filereplacement.moc"
