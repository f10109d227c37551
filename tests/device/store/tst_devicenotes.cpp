// Notes about devices: their assignment to devices, their file, and their display in the table.
#include "device/models/devicetablemodel.h"
#include "device/store/devicenotes.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

using Row = QVariantMap;

Row device(const QString &mac, const QString &identity = {})
{
    return {{"mac", mac}, {"identity", identity.isEmpty() ? mac : identity}, {"ipport", "10.0.0.5:80"}};
}

} // namespace

/// A back end whose rows can also be read individually.
class SingleRows : public RowsBackEnd
{
    Q_OBJECT
public:
    QJsonObject deviceRow(const QString &name) override
    {
        for (const QVariant &row : std::as_const(ipv4)) {
            if (rowName(row.toJsonObject()) == name)
                return row.toJsonObject();
        }
        return {};
    }
};

class TestDeviceNotes : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_directory;

    [[nodiscard]] QString path() const { return m_directory->filePath("notes.json"); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_directory->path()).entryList(QDir::Files, QDir::Name);
    }

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void aNoteBelongsToTheIdentity_data()
    {
        const auto row = dataTable<Row, Row, bool>({"noted", "found", "isSame"});
        const QString uuid = "uuid:5F5A69C2-e0ae-504f-829b-00000000000b";
        row("MAC", device("3c:ef:8c:01:02:03"), device("3c:ef:8c:01:02:03"), true);
        row("MAC in another spelling", device("3c:ef:8c:01:02:03"), device("3C-EF-8C-01-02-03"), true);
        row("other MAC at the same address", device("3c:ef:8c:01:02:03"), device("3c:ef:8c:01:02:04"), false);
        row("UUID", device("", uuid), device("", uuid.toUpper().replace("UUID:", "uuid:")), true);
        row("UUID, the MAC is known later", device("", uuid), device("3c:ef:8c:01:02:03", uuid), true);
        row("other UUID", device("", uuid), device("", uuid + "c"), false);
    }

    void aNoteBelongsToTheIdentity()
    {
        QFETCH(const Row, noted);
        QFETCH(const Row, found);
        QFETCH(const bool, isSame);
        {
            DeviceNotes notes(path());
            QCOMPARE(notes.setNote(noted, " north\nwing  "), "");
        }
        DeviceNotes notes(path());
        QCOMPARE(notes.noteOf(found), isSame ? "north wing" : "");
        QCOMPARE(notes.setNote(found, "moved"), "");
        QCOMPARE(notes.noteOf(found), "moved");
        QCOMPARE(notes.count(), isSame ? 1 : 2);
        QCOMPARE(notes.setNote(found, ""), "");
        QCOMPARE(DeviceNotes(path()).count(), isSame ? 0 : 1);
    }

    void someNotesAreRefused()
    {
        DeviceNotes notes(path());
        const Row unnamed = device("", "10.0.0.5:80"); // another device may get that address
        QVERIFY(!notes.canNote(unnamed));
        QVERIFY(!notes.setNote(unnamed, "north").isEmpty());
        QVERIFY(!notes.setNote(device("m1"), QString(DeviceNotes::longestNote() + 1, 'x')).isEmpty());
        QCOMPARE(notes.setNote(device("m1"), QString(DeviceNotes::longestNote(), 'x')), "");
        QCOMPARE(notes.count(), 1);
    }

    void aFullDiskLosesNothing()
    {
        DeviceNotes notes(path());
        QCOMPARE(notes.setNote(device("m1"), "first"), "");
        const QByteArray before = fileContents(path());
        {
            const FileSizeLimit limit(static_cast<rlim_t>(before.size()) + 10);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot write .*notes.json"));
            const QString failure = notes.setNote(device("m2"), QString(100, 'x'));
            QVERIFY2(failure.startsWith("备注无法保存："), qPrintable(failure));
        }
        QCOMPARE(notes.noteOf(device("m2")), "");
        QCOMPARE(fileContents(path()), before);
        QCOMPARE(files(), QStringList("notes.json"));
    }

    void aDamagedFileIsKept_data()
    {
        const auto row = dataTable<QByteArray, QString>({"contents", "first"});
        row("no JSON", "[notes]\n", "");
        row("something else", "{\"devices\": []}", "");
        row("partly", "{\"notes\": [{\"device\": \"m1\", \"text\": \"first\"}, {\"device\": 7}, 3]}",
            "first");
        row("truncated", "{\"notes\": [{\"device\": \"m1\", \"text\": \"fir", "");
        row("empty", "", "");
    }

    void aDamagedFileIsKept()
    {
        QFETCH(const QByteArray, contents);
        QVERIFY(writeFile(path(), contents));
        QVERIFY(writeFile(path() + ".damaged", "earlier"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("contains invalid notes"));
        DeviceNotes notes(path());
        QVERIFY(notes.problem().contains("notes.json"));
        QTEST(notes.noteOf(device("m1")), "first");
        QCOMPARE(fileContents(path()), contents); // until notes are written
        QCOMPARE(notes.setNote(device("m2"), "second"), "");
        QCOMPARE(notes.problem(), "");
        QCOMPARE(fileContents(path() + ".damaged2"), contents);
        QCOMPARE(fileContents(path() + ".damaged"), "earlier");
        QTEST(DeviceNotes(path()).noteOf(device("m1")), "first");
        QCOMPARE(DeviceNotes(path()).noteOf(device("m2")), "second");
    }

    void aFileWithTooManyNotesIsKept()
    {
        QByteArray contents = "{'notes': [{'device': 'm1', 'text': 'first'}";
        for (int number = 0; number < DeviceNotes::mostNotes; ++number)
            contents += ", {'device': 'n" + QByteArray::number(number) + "', 'text': 't'}";
        contents += "]}";
        contents.replace('\'', '"');
        QVERIFY(writeFile(path(), contents));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("contains invalid notes"));
        DeviceNotes notes(path());
        QCOMPARE(notes.count(), DeviceNotes::mostNotes);
        QVERIFY(notes.problem().contains("notes.json"));
        QCOMPARE(notes.setNote(device("m1"), "changed"), "");
        QCOMPARE(fileContents(path() + ".damaged"), contents);
        QCOMPARE(DeviceNotes(path()).noteOf(device("m1")), "changed");
    }

    /// The file may contain notes, so it is not overwritten.
    void aFileThatCannotBeOpenedIsNotWritten()
    {
        QVERIFY(QDir().mkpath(path())); // not writable even for an administrator
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot read .*notes.json"));
        DeviceNotes notes(path());
        QVERIFY(notes.problem().contains("notes.json"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot read .*notes.json"));
        QCOMPARE(notes.setNote(device("m1"), "first"), notes.problem());
        QVERIFY(QDir().rmdir(path())); // the file can be written again
        QVERIFY(writeFile(path(), "{\"notes\": [{\"device\": \"m2\", \"text\": \"second\"}]}"));
        {
            const FileSizeLimit limit(10);
            const QSignalSpy changed(&notes, &DeviceNotes::changed);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot write .*notes.json"));
            QVERIFY(!notes.setNote(device("m1"), "first").isEmpty());
            QCOMPARE(changed.count(), 1); // its notes are shown now
        }
        QCOMPARE(notes.setNote(device("m1"), "first"), "");
        QCOMPARE(notes.noteOf(device("m2")), "second");
        QCOMPARE(notes.problem(), "");
    }

    void theTableShowsNotes()
    {
        const auto rows = std::make_shared<SingleRows>();
        CDeviceFactory factory({{QStringLiteral("dh"), [rows] {
                                     return rows;
                                 }}});
        rows->add({.address = "10.0.0.5", .mac = "m1", .type = "IPC"});
        rows->add({.address = "10.0.0.6", .mac = "m2", .type = "IPC"});
        rows->add({.address = "10.0.0.7", .mac = "m3", .type = "IPC"});
        DeviceNotes notes(path());
        QCOMPARE(notes.setNote(device("m2"), "north"), "");
        DeviceTableModel table;
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        table.setDeviceFactory(&factory);
        table.setNotes(&notes);
        QCOMPARE(table.get(1).value("note").toString(), "north");
        const QSignalSpy changed(&table, &QAbstractItemModel::dataChanged);
        QCOMPARE(notes.setNote(table.get(0), "south"), "");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(table.get(0).value("note").toString(), "south");
        table.refreshDevice("m1"); // as each result of a batch does
        QCOMPARE(table.get(0).value("note").toString(), "south");

        table.setSort("note", Qt::DescendingOrder);
        QCOMPARE(table.get(0).value("mac").toString(), "m1");
        table.setSearchText("NORTH");
        QCOMPARE(table.rowCount(), 1);
        QCOMPARE(table.get(0).value("mac").toString(), "m2");
        table.setSearchText({});

        // A search clears the list and finds the device at another address.
        rows->ipv4.clear();
        table.refresh();
        rows->add({.address = "10.0.9.9", .mac = "m2", .type = "IPC"});
        table.refresh();
        QCOMPARE(table.get(0).value("note").toString(), "north");
        QVERIFY(!rows->ipv4.first().toJsonObject().contains("note")); // the rows are exported to list files
    }
};

QTEST_MAIN(TestDeviceNotes)
#include "tst_devicenotes.moc"
