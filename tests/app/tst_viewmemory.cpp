#include "app/localconfig.h"
#include "app/viewmemory.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

class TestViewMemory : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_directory;

    [[nodiscard]] QString path() const { return m_directory->filePath("LocalConfig.ini"); }
    [[nodiscard]] QString onDisk(const QString &key) const
    {
        return QSettings(path(), QSettings::IniFormat).value(key).toString();
    }

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    /// Other contents of the file are kept, including keys of other versions.
    void stringsAreStoredPersistently()
    {
        QVERIFY(writeFile(path(), "[searchConfig]\nendIP=10.0.0.9\n[view]\ntab=3\nnewer=kept\n"));
        {
            ViewMemory memory(path());
            QCOMPARE(memory.text("tab"), "3");
            memory.keep("tab", "1");
            memory.keep("deviceColumns", "-mac name:180 ipport");
            QCOMPARE(memory.text("tab"), "1"); // immediately
            QCOMPARE(onDisk("view/tab"), "3"); // written later, together with other strings
        }
        const ViewMemory memory(path());
        QCOMPARE(memory.text("tab"), "1");
        QCOMPARE(memory.text("deviceColumns"), "-mac name:180 ipport");
        QCOMPARE(onDisk("view/newer"), "kept");
        QCOMPARE(onDisk("searchConfig/endIP"), "10.0.0.9");
    }

    void stringsAreWrittenAutomatically()
    {
        const CLocalConfig config(m_directory->path());
        ViewMemory memory(config.settingsPath());
        memory.keep("tab", "2");
        QTRY_COMPARE(onDisk("view/tab"), "2");
        QCOMPARE(config.getSearchConfigLocalDomain(), 1);
    }

    void invalidStringsReadAsEmpty_data()
    {
        const auto row = dataTable<QByteArray>({"value"});
        row("a list", "a, b");
        row("a type of Qt", "@Invalid()");
        row("too long", QByteArray(5000, 'x'));
    }

    void invalidStringsReadAsEmpty()
    {
        QFETCH(const QByteArray, value);
        QVERIFY(writeFile(path(), "[view]\ntab=" + value + "\norder=-name\n"));
        const ViewMemory memory(path());
        QCOMPARE(memory.text("tab"), "");
        QCOMPARE(memory.text("order"), "-name");
    }

    /// A file with only these strings would count as complete and lack the defaults of all other settings.
    void noFileIsCreated()
    {
        {
            ViewMemory memory(path());
            memory.keep("tab", "2");
        }
        QVERIFY(QDir(m_directory->path()).isEmpty());
    }

    void aFullDiskIsReportedOnceAndRetried()
    {
        const CLocalConfig config(m_directory->path());
        ViewMemory memory(path());
        const QSignalSpy failed(&memory, &ViewMemory::failed);
        const QByteArray before = fileContents(path());
        {
            const FileSizeLimit limit(static_cast<rlim_t>(before.size()) + 10);
            for (const char *columns : {"mac name", "mac name:200"}) {
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("ViewMemory: cannot write"));
                memory.keep("deviceColumns", QString(columns).repeated(20));
                memory.write();
            }
            QCOMPARE(failed.count(), 1);
            QCOMPARE(fileContents(path()), before);
        }
        memory.write();
        QCOMPARE(onDisk("view/deviceColumns"), QString("mac name:200").repeated(20));
    }
};

QTEST_MAIN(TestViewMemory)
#include "tst_viewmemory.moc"
