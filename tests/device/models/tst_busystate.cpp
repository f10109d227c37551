#include "device/models/batchreport.h"
#include "device/models/busyreport.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"

#include <QSignalSpy>

namespace {

const QStringList nothing;
const QStringList copying = {QStringLiteral("copying")};
const QStringList both = {QStringLiteral("copying"), QStringLiteral("snapshots")};

} // namespace

class TestBusyState : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRefusalNamesTheRunningOperations_data()
    {
        // named: while one operation uses the rows and another the application
        // namedLater: while only the latter runs
        const auto row = dataTable<BusyState::Action, QStringList, QStringList, bool>(
            {"action", "named", "namedLater", "waitsForUpgrades"});
        row("search", BusyState::Search, copying, nothing, true);
        row("delete", BusyState::Delete, copying, nothing, false);
        row("change an address", BusyState::ChangeAddress, copying, nothing, false);
        row("close", BusyState::Close, both, both.sliced(1), true);
        row("restart", BusyState::Restart, both, both.sliced(1), true);
    }
    void aRefusalNamesTheRunningOperations()
    {
        QFETCH(BusyState::Action, action);
        QFETCH(QStringList, named);
        QFETCH(QStringList, namedLater);
        QFETCH(bool, waitsForUpgrades);
        bool isUpgrading = false;
        BusyState state([&] { return isUpgrading; });
        const auto namedNow = [&] {
            QStringList titles;
            for (const QString &title : both) {
                if (state.refusal(action).contains(title))
                    titles.append(title);
            }
            return titles;
        };

        QCOMPARE(state.refusal(action), QString());
        const int first = state.begin(QStringLiteral("copy"), BusyState::Rows);
        state.rename(first, copying.first());
        const int second = state.begin(both.last(), BusyState::Program);
        QCOMPARE(namedNow(), named);
        state.end(first);
        QCOMPARE(namedNow(), namedLater);
        state.end(second);
        state.end(second);
        QCOMPARE(state.refusal(action), QString());
        isUpgrading = true;
        QCOMPARE(!state.refusal(action).isEmpty(), waitsForUpgrades);
    }

    void aSearchAndUnsavedInputBlockSomeActions_data()
    {
        const auto row = dataTable<BusyState::Action, bool, bool>({"action", "waitsForSearch", "losesEdits"});
        row("search", BusyState::Search, false, false); // a running search is stopped first
        row("delete", BusyState::Delete, false, false);
        row("change an address", BusyState::ChangeAddress, false, false);
        row("close", BusyState::Close, true, true);
        row("restart", BusyState::Restart, true, true);
        row("change the tab", BusyState::ChangeTab, false, true);
    }
    void aSearchAndUnsavedInputBlockSomeActions()
    {
        QFETCH(BusyState::Action, action);
        QFETCH(bool, waitsForSearch);
        BusyState state({});
        const int edits = state.begin(QStringLiteral("page"), BusyState::Edits);
        QCOMPARE(state.refusal(action), QString()); // QML asks the user instead
        QTEST(state.losesEdits(action), "losesEdits");
        const int search = state.begin(QStringLiteral("searching"), BusyState::Listing);
        QCOMPARE(state.refusal(action).contains(QStringLiteral("Esc")), waitsForSearch);
        QVERIFY(!state.areRowsInUse());

        const int copy = state.begin(copying.first(), BusyState::Rows);
        QCOMPARE(state.refusal(action).contains(copying.first()), action != BusyState::ChangeTab);
        QCOMPARE(state.refusal(action).contains(QStringLiteral("searching")), waitsForSearch);
        for (const int work : {edits, search, copy})
            state.end(work);
        QVERIFY(!state.losesEdits(action));
        QCOMPARE(state.refusal(action), QString());
    }

    void aDestroyedReportEndsItsOperation()
    {
        BusyState state({});
        auto report = std::make_unique<BusyReport>();
        report->setActive(true);
        report->setTitle(copying.first());
        report->setState(&state);
        QVERIFY(state.refusal(BusyState::Close).contains(copying.first()));
        report->setActive(false);
        QVERIFY(!state.areRowsInUse());

        report->setActive(true);
        QSignalSpy changes(&state, &BusyState::changed);
        report->setTitle(both.last()); // the rows must remain reserved without a gap
        QCOMPARE(changes.count(), 0);
        QVERIFY(state.refusal(BusyState::Search).contains(both.last()));
        report.reset();
        QVERIFY(!state.areRowsInUse());
    }

    void aDeviceListedTwiceCountsAsTwo()
    {
        BatchReport report;
        report.begin({"1", "2", "1", "3", "5"});
        report.note("1", 0);
        report.note("4", 0);
        report.note("2", BatchReport::Waiting);
        QCOMPARE(report.devicesNotSucceeded(), QStringList({"2", "1", "3", "5"}));
        report.note("1", 5);
        report.note("2", 999);
        report.note("5", BatchReport::NotInitialised);
        QCOMPARE(report.devicesWith(BatchReport::NotDone), QStringList("3"));
        QCOMPARE(report.summary(),
                 QStringLiteral("1 台设备成功，2 台设备失败，1 台设备已跳过，1 台设备未执行"));
        QVERIFY(report.summaryOfRunning().endsWith(QStringLiteral("1 台设备等待执行")));
    }

    void noSearchStartsWhileRowsAreUsed()
    {
        struct SearchingBackEnd : RowsBackEnd
        {
            void startSearch() override { ++searches; }
            int searches = 0;
        };
        const auto backEnd = std::make_shared<SearchingBackEnd>();
        CDeviceFactory factory({{QStringLiteral("dh"), [&] {
                                     return backEnd;
                                 }}});
        const QSignalSpy ends(&factory, &CDeviceFactory::signalSearchDone);
        const int work = factory.busyState()->begin(copying.first(), BusyState::Rows);
        factory.startSearch(QStringLiteral("dh"));
        QCOMPARE(backEnd->searches, 0);
        QCOMPARE(ends.count(), 1); // the caller does not wait forever
        factory.busyState()->end(work);
        factory.startSearch(QStringLiteral("dh"));
        QCOMPARE(backEnd->searches, 1);
    }
};

QTEST_GUILESS_MAIN(TestBusyState)

#include "tst_busystate.moc"
