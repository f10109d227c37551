// Marks of failed devices, and the table and the tree that are filtered by them.
#include "device/models/devicetablemodel.h"
#include "device/models/failedmarks.h"
#include "device/models/treemodel.h"
#include "device/models/treerows.h"
#include "device/registry/loginresult.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"

#include <QAbstractItemModelTester>

namespace {

constexpr int succeeded = 0;
constexpr int waits = resultCode(LoginResult::Unknown);
constexpr int wrongPassword = resultCode(LoginResult::WrongPassword);
constexpr int notInitialised = resultCode(LoginResult::NotInitialised);
constexpr int away = resultCode(LoginResult::NetworkFailure);

using Batches = QList<std::pair<QString, QList<int>>>; ///< operation, and results of the device

} // namespace

Q_DECLARE_METATYPE(Batches)

class TestFailedMarks : public QObject
{
    Q_OBJECT
private:
    static void note(FailedMarks &marks, const QString &work, const QHash<QString, int> &results)
    {
        QList<FailedMarks::Outcome> outcomes;
        for (auto result = results.cbegin(); result != results.cend(); ++result)
            outcomes.append(
                {.identity = result.key(), .result = result.value(), .message = resultName(result.value())});
        marks.note(work, "title of " + work, outcomes);
    }

    /// Four devices, two of which failed for the same reason, and a mark of an unlisted device.
    static void fill(RowsBackEnd &rows, FailedMarks &marks)
    {
        rows.add({.address = "10.0.0.10", .mac = "m10", .type = "IPC"});
        rows.add({.address = "10.0.0.9", .mac = "m9", .type = "NVR"});
        rows.add({.address = "10.0.0.3", .mac = "m3", .type = "IPC"});
        rows.add({.address = "10.0.0.1", .mac = "m1", .type = "IPC"});
        note(
            marks, "reboot",
            {{"m10", wrongPassword}, {"m9", wrongPassword}, {"m3", away}, {"m1", succeeded}, {"gone", away}});
    }

    static QStringList shown(const DeviceTableModel &table)
    {
        QStringList macs;
        for (int row = 0; row < table.rowCount(); ++row)
            macs.append(table.get(row).value("mac").toString());
        return macs;
    }

private Q_SLOTS:
    void aMarkRemainsUntilTheSameOperationSucceeds_data()
    {
        const auto row = dataTable<Batches, QString>({"batches", "message"});
        const QString password = resultName(wrongPassword);
        row("failed", {{"reboot", {wrongPassword}}}, QStringLiteral("title of reboot：") + password);
        row("succeeded later", {{"reboot", {wrongPassword}}, {"reboot", {succeeded}}}, "");
        row("another operation succeeds", {{"reboot", {wrongPassword}}, {"copy", {succeeded}}},
            QStringLiteral("title of reboot：") + password);
        row("two operations", {{"copy", {away}}, {"reboot", {wrongPassword}}, {"reboot", {succeeded}}},
            QStringLiteral("title of copy：") + resultName(away));
        row("waits for the next step", {{"password", {wrongPassword}}, {"password", {waits}}},
            QStringLiteral("title of password：") + password);
        row("skipped later", {{"reboot", {wrongPassword}}, {"reboot", {notInitialised}}},
            QStringLiteral("title of reboot：") + password);
        row("only skipped", {{"reboot", {notInitialised}}}, "");
        row("named twice in a batch", {{"lines", {wrongPassword, succeeded}}},
            QStringLiteral("title of lines：") + password);
    }

    void aMarkRemainsUntilTheSameOperationSucceeds()
    {
        QFETCH(Batches, batches);
        FailedMarks marks;
        for (const auto &[work, results] : std::as_const(batches)) {
            QList<FailedMarks::Outcome> outcomes;
            for (const int result : results)
                outcomes.append({.identity = "m1", .result = result, .message = resultName(result)});
            marks.note(work, "title of " + work, outcomes);
        }
        QTEST(marks.messagesOf("m1"), "message");
        QCOMPARE(marks.count(), marks.messagesOf("m1").isEmpty() ? 0 : 1);
    }

    /// Different commands have the same title.
    void theSameMessageIsListedOnce()
    {
        FailedMarks marks;
        for (const char *work : {"cgi 1", "cgi 2"})
            marks.note(work, "CGI", {{.identity = "m1", .result = away, .message = "away"}});
        QCOMPARE(marks.messagesOf("m1"), QStringLiteral("CGI：away"));
    }

    void marksAreChosenByOperation()
    {
        RowsFactory site;
        FailedMarks marks;
        DeviceTableModel table;
        OVTreeModel tree;
        table.setFailedMarks(&marks);
        tree.setFailedMarks(&marks);
        fill(*site.rows, marks);
        note(marks, "copy", {{"m9", away}, {"m1", away}});
        table.setDeviceFactory(&site.factory);
        tree.setDeviceFactory(&site.factory);
        tree.resetItems("removeuninit", "");
        QCOMPARE(marks.operations(), (QStringList{"title of copy", "title of reboot"}));
        table.setOnlyFailed(true);
        tree.setShown(OVTreeModel::Failed);
        QCOMPARE(table.failedCount(), 4);
        table.setFailedOperation("title of copy");
        tree.setFailedOperation("title of copy");
        QCOMPARE(shown(table), (QStringList{"m1", "m9"}));
        QCOMPARE(table.failedCount(), 2);
        QCOMPARE(tree.deviceCount(), 2);
        QCOMPARE(tree.failedElsewhereCount(), 0);
        // The last mark of the operation goes: those of the other one are shown.
        note(marks, "copy", {{"m9", succeeded}, {"m1", succeeded}});
        QCOMPARE(table.failedOperation(), QString());
        QCOMPARE(table.rowCount(), 3);
        QCOMPARE(tree.deviceCount(), 3);
    }

    void theTableShowsOnlyFailedDevices()
    {
        RowsFactory site;
        FailedMarks marks;
        DeviceTableModel table;
        const QAbstractItemModelTester tester(&table);
        table.setFailedMarks(&marks);
        fill(*site.rows, marks);
        table.setDeviceFactory(&site.factory);
        QCOMPARE(table.get(table.rowOf("m3")).value("failure").toString(), marks.messagesOf("m3"));
        QCOMPARE(table.failedCount(), 3); // one of the four marks has no row
        table.setOnlyFailed(true);
        const bool passwordFirst = resultName(wrongPassword) < resultName(away);
        QCOMPARE(shown(table),
                 passwordFirst ? (QStringList{"m9", "m10", "m3"}) : (QStringList{"m3", "m9", "m10"}));

        // The next search finds a device at another address.
        site.rows->ipv4.clear();
        table.refresh();
        QCOMPARE(table.rowCount(), 0);
        QCOMPARE(table.failedCount(), 0);
        site.rows->add({.address = "10.0.7.7", .mac = "m3", .type = "IPC"});
        table.refresh();
        QCOMPARE(shown(table), QStringList("m3"));
        QCOMPARE(table.failedCount(), 1);

        note(marks, "reboot", {{"m3", succeeded}});
        QCOMPARE(table.rowCount(), 0);
        marks.clear();
        QVERIFY(!table.onlyFailed());
        QCOMPARE(shown(table), QStringList("m3"));
    }

    void theTreeGroupsFailedDevicesByReason()
    {
        RowsFactory site;
        FailedMarks marks;
        OVTreeModel tree;
        const QAbstractItemModelTester tester(&tree);
        tree.setDeviceFactory(&site.factory);
        tree.setFailedMarks(&marks);
        fill(*site.rows, marks);
        site.rows->add({.address = "", .mac = "m0", .type = "IPC"});
        tree.resetItems("removeuninit", "");
        QCOMPARE(tree.failedCount(), 3);
        QCOMPARE(tree.failedElsewhereCount(), 1);
        QCOMPARE(tree.unaddressedCount(), 1);
        note(marks, "copy", {{"m1", away}});
        QCOMPARE(tree.failedCount(), 4);
        note(marks, "copy", {{"m1", succeeded}});
        tree.setCheckedDevices({"m1", "m9"});
        tree.setShown(OVTreeModel::Failed);
        DeviceTreeRows rows;
        rows.setTree(&tree);
        QStringList lines;
        for (int row = 0; row < rows.rowCount(); ++row)
            lines.append(rows.index(row).data(DeviceTreeRows::TitleRole).toString());
        const QStringList password = {resultName(wrongPassword), "10.0.0.9:37777", "10.0.0.10:37777"};
        const QStringList network = {resultName(away), "10.0.0.3:37777"};
        QCOMPARE(lines, password.first() < network.first() ? password + network : network + password);
        QCOMPARE(rows.index(1).data(DeviceTreeRows::FailureRole).toString().isEmpty(), false);
        QCOMPARE(tree.checkedDevices(), QStringList("10.0.0.9:37777"));

        tree.resetItems("search", "10.0.0.10");
        QCOMPARE(tree.deviceCount(), 1);
        tree.resetItems("removeuninit", "");
        note(marks, "reboot", {{"m10", succeeded}, {"m9", succeeded}, {"m3", succeeded}});
        QCOMPARE(marks.count(), 1); // the device is not in the tree
        QCOMPARE(tree.shown(), OVTreeModel::All);
        QCOMPARE(tree.checkedCount(), 2);
    }
};

QTEST_GUILESS_MAIN(TestFailedMarks)
#include "tst_failedmarks.moc"
