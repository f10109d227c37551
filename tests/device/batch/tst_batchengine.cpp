#include "device/batch/batchengine.h"
#include "device/registry/deviceimport.h"
#include "sdk/demo/steppableclock.h"
#include "tests/datatable.h"

#include <QSemaphore>

#include <algorithm>
#include <atomic>

using namespace std::chrono_literals;

namespace {

constexpr int wrongPassword = resultCode(LoginResult::WrongPassword);
constexpr int success = resultCode(LoginResult::Success);

/// The signals of a batch.
class Record : public BatchWatcher
{
public:
    void started(std::size_t index) override
    {
        const std::lock_guard lock(m_mutex);
        m_started.append(static_cast<int>(index));
    }
    void finished(std::size_t index, const StepOutcome &outcome) override
    {
        const std::lock_guard lock(m_mutex);
        m_finished.append({static_cast<int>(index), outcome.result});
    }
    void paused() override { ++holds; }
    void ended() override { ++ends; }

    [[nodiscard]] QList<int> startedIndexes() const
    {
        const std::lock_guard lock(m_mutex);
        return m_started;
    }
    [[nodiscard]] QList<std::pair<int, int>> results() const
    {
        const std::lock_guard lock(m_mutex);
        return m_finished;
    }

    std::atomic<int> holds = 0;
    std::atomic<int> ends = 0;

private:
    mutable std::mutex m_mutex;
    QList<int> m_started;
    QList<std::pair<int, int>> m_finished;
};

} // namespace

class TestBatchEngine : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    std::unique_ptr<BatchEngine> m_engine;
    std::shared_ptr<Record> m_record;
    QSemaphore m_gate; ///< a waiting step takes one resource
    std::atomic<int> m_runs = 0;

    /// A step that ends when it passes the gate, or when it is stopped.
    BatchItem waiting(const QString &device)
    {
        return {.device = device, .step = [this](const StepControl &control) {
                    ++m_runs;
                    while (!m_gate.tryAcquire(1, 1)) {
                        if (control.isStopped())
                            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = {}};
                    }
                    return StepOutcome();
                }};
    }
    BatchItem ending(const QString &device, int result = success)
    {
        return {.device = device, .step = [this, result](const StepControl &) {
                    ++m_runs;
                    return StepOutcome{.result = result, .text = {}};
                }};
    }
    [[nodiscard]] std::vector<BatchItem> many(int count)
    {
        std::vector<BatchItem> items;
        for (int number = 0; number < count; ++number)
            items.push_back(waiting(QString::number(number)));
        return items;
    }
    int start(std::vector<BatchItem> items, const BatchPolicy &policy)
    {
        return m_engine->start(std::move(items), policy, m_record);
    }

private Q_SLOTS:
    void init()
    {
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        m_engine = std::make_unique<BatchEngine>(m_clock);
        m_record = std::make_shared<Record>();
        m_runs = 0;
        while (m_gate.tryAcquire())
            ;
    }

    void cleanup()
    {
        m_gate.release(1000);
        m_engine.reset();
    }

    void runsALimitedNumberOfStepsAtATime_data()
    {
        const auto row = dataTable<int, int>({"maximumParallel", "expected"});
        row("one", 1, 1);
        row("three", 3, 3);
        row("more than there are", 20, 6);
    }

    void runsALimitedNumberOfStepsAtATime()
    {
        QFETCH(int, maximumParallel);
        QFETCH(int, expected);
        QVERIFY(start(many(6), {.maximumParallel = maximumParallel}) > 0);
        QTRY_COMPARE(m_runs, expected);
        for (int ended = 1; ended <= 6; ++ended) {
            m_gate.release();
            QTRY_COMPARE(m_runs, std::min(expected + ended, 6));
            QTRY_COMPARE(m_record->results().size(), ended);
        }
        QTRY_COMPARE(m_record->ends, 1);
        QList<int> indexes = m_record->startedIndexes();
        if (expected > 1)
            std::sort(indexes.begin(), indexes.end());
        QCOMPARE(indexes, (QList<int>{0, 1, 2, 3, 4, 5}));
    }

    /// This applies across batches, in the order of the requests.
    void runsOneStepPerDeviceAtATime()
    {
        const auto other = std::make_shared<Record>();
        start({waiting("a"), waiting("a"), waiting("b")}, {.maximumParallel = 8});
        QTRY_COMPARE(m_record->startedIndexes().size(), 2);
        m_engine->start({waiting("a"), waiting("c")}, {.maximumParallel = 8}, other);
        QTRY_COMPARE(other->startedIndexes(), QList<int>{1});
        QVERIFY(!m_record->startedIndexes().contains(1));
        m_gate.release(5);
        QTRY_COMPARE(m_record->ends + other->ends, 2);
        QCOMPARE(m_runs, 5);
    }

    /// The hold waits for the running step, and the next step waits for the hold.
    void otherWorkReservesADevice()
    {
        start({waiting("a")}, {.maximumParallel = 8});
        QTRY_COMPARE(m_runs, 1);
        QSemaphore release;
        std::atomic<qsizetype> finishedBefore = -1;
        const std::jthread worker([&] {
            const BatchEngine::Reservation hold = m_engine->reserve("a", {});
            finishedBefore = m_record->results().size();
            release.acquire();
        });
        std::stop_source stop;
        stop.request_stop();
        (void)m_engine->reserve("a", stop.get_token()); // does not wait
        m_gate.release();
        QTRY_COMPARE(finishedBefore, 1);

        const auto other = std::make_shared<Record>();
        m_engine->start({waiting("a"), waiting("b")}, {.maximumParallel = 8}, other);
        QTRY_COMPARE(other->startedIndexes(), QList<int>{1});
        m_gate.release(2);
        QTRY_COMPARE(other->results().size(), 1);
        QCOMPARE(other->startedIndexes(), QList<int>{1});
        release.release();
        QTRY_COMPARE(other->ends, 1);
    }

    void aRefusedAccountIsNotUsedAgain_data()
    {
        const auto row = dataTable<int, int>({"result", "expectedRuns"});
        row("wrong password", wrongPassword, 1);
        row("locked", resultCode(LoginResult::AccountLocked), 1);
        row("no response", resultCode(LoginResult::NetworkFailure), 3);
    }

    void aRefusedAccountIsNotUsedAgain()
    {
        QFETCH(int, result);
        QFETCH(int, expectedRuns);
        start({ending("a", result), ending("a", result), ending("a", result)}, {.maximumParallel = 8});
        QTRY_COMPARE(m_record->ends, 1);
        QCOMPARE(m_runs, expectedRuns);
        QCOMPARE(m_record->results(), (QList<std::pair<int, int>>{{0, result}, {1, result}, {2, result}}));
    }

    void consecutiveWrongPasswordsPauseABatch_data()
    {
        // between: the result of the second of six devices; all others except the last two have a wrong
        // password
        const auto row = dataTable<int, int>({"between", "runsUntilHeld"});
        row("done", success, 4);
        row("right password, next step follows", resultCode(LoginResult::Unknown), 4);
        row("logged in, request refused", 999, 4);
        row("no response", resultCode(LoginResult::NetworkFailure), 3);
        row("nothing was sent", resultCode(LoginResult::AlreadyListed), 3);
        row("nothing could be sent", unusableLine, 3);
        row("certificate not accepted", resultCode(LoginResult::UnknownCertificate), 3);
        row("certificate changed", resultCode(LoginResult::ChangedCertificate), 3);
        row("busy with another upgrade", deviceBusy, 3);
    }

    void consecutiveWrongPasswordsPauseABatch()
    {
        QFETCH(int, between);
        std::vector<BatchItem> items = {
            ending("a", wrongPassword), ending("b", between), ending("c", wrongPassword),
            ending("d", wrongPassword), ending("e"),          ending("f")};
        const int batch = start(std::move(items), {.maximumParallel = 1, .wrongPasswordsInARow = 2});
        QTRY_COMPARE(m_record->holds, 1);
        QTEST(m_runs.load(), "runsUntilHeld");
        m_engine->resume(batch);
        m_engine->stop(batch);
        QTRY_COMPARE(m_record->ends, 1);
    }

    void stepsOfALaterBatchDoNotOvertake()
    {
        start({waiting("a")}, {.maximumParallel = 1});
        QTRY_COMPARE(m_runs, 1);
        const auto second = std::make_shared<Record>();
        const auto third = std::make_shared<Record>();
        m_engine->start({ending("a"), ending("b")}, {.maximumParallel = 1}, second);
        m_engine->start({ending("c")}, {.maximumParallel = 1}, third);
        QTRY_COMPARE(third->ends, 1);
        m_gate.release();
        QTRY_COMPARE(second->ends, 1);
        QCOMPARE(second->startedIndexes(), QList<int>({0, 1}));
    }

    void aStopSkipsWaitingStepsAndReachesRunningOnes()
    {
        const int batch = start(many(100), {.maximumParallel = 4});
        QTRY_COMPARE(m_runs, 4);
        m_engine->stop(batch);
        QTRY_COMPARE(m_record->ends, 1);
        QCOMPARE(m_runs, 4);
        QCOMPARE(m_record->results().size(), 4);
        m_engine->stop(batch);
        QCOMPARE(m_record->ends, 1);
    }

    void aPausedBatchCanBeStopped()
    {
        const int batch = start({ending("a", wrongPassword), ending("b")},
                                {.maximumParallel = 1, .wrongPasswordsInARow = 1});
        QTRY_COMPARE(m_record->holds, 1);
        m_engine->stop(batch);
        QTRY_COMPARE(m_record->ends, 1);
        QCOMPARE(m_runs, 1);
    }

    void aStepThatWaitsForItsDeviceFreesItsSlot()
    {
        std::vector<BatchItem> items;
        for (int number = 0; number < 5; ++number) {
            items.push_back({.device = QString::number(number), .step = [this](const StepControl &control) {
                                 control.releaseSlot();
                                 ++m_runs;
                                 m_gate.acquire();
                                 return StepOutcome();
                             }});
        }
        start(std::move(items), {.maximumParallel = 1});
        QTRY_COMPARE(m_runs, 5);
        m_gate.release(5);
        QTRY_COMPARE(m_record->ends, 1);
    }

    void aStepIsInformedOfItsDeadline()
    {
        std::atomic<int> pieces = 0; // parts of its work, each with the full time limit
        start({{.device = "a",
                .step =
                    [&](const StepControl &control) {
                        while (!control.shouldEnd()) {
                            control.noteProgress();
                            ++pieces;
                            m_gate.acquire();
                        }
                        return StepOutcome{.result = pieces, .text = {}};
                    }}},
              {.maximumParallel = 1, .deadline = 5s});
        for (const int begun : {1, 2, 3}) {
            QTRY_COMPARE(pieces, begun);
            m_clock->advance(begun < 3 ? 3s : 5s);
            m_gate.release();
        }
        QTRY_COMPARE(m_record->results(), (QList<std::pair<int, int>>{{0, 3}}));
    }

    void nothingStartsAfterTheEnd()
    {
        start(many(50), {.maximumParallel = 2});
        QTRY_COMPARE(m_runs, 2);
        m_engine->end();
        QCOMPARE(m_record->ends, 1);
        QCOMPARE(start(many(1), {}), 0);
    }

    void anEmptyBatchEndsImmediately()
    {
        QVERIFY(start({}, {}) > 0);
        QCOMPARE(m_record->ends, 1);
    }
};

QTEST_GUILESS_MAIN(TestBatchEngine)
#include "tst_batchengine.moc"
