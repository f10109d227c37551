// The clock that is stepped: who wakes, and when.
#include "sdk/demo/steppableclock.h"

#include <QTest>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using sdk::demo::SteppableClock;

class SteppableClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wakesAtTheStepThatReachesTheTime();
    void passedTimesDoNotWait();
    void stopEndsTheWait();
    void losesNoWakeUp();
};

void SteppableClockTest::wakesAtTheStepThatReachesTheTime()
{
    SteppableClock clock(1000);
    const auto waitFor = [&clock](std::chrono::milliseconds duration) {
        return std::async(std::launch::async, [&clock, duration] { return clock.wait(duration, {}); });
    };
    std::future<bool> early = waitFor(100ms);
    std::future<bool> late = waitFor(200ms);
    QVERIFY(clock.waitForWaiters(2));

    clock.advance(99ms);
    QCOMPARE(clock.waiters(), 2);
    clock.advance(1ms);
    QCOMPARE(clock.waiters(), 1); // at once, whether or not the thread runs already
    QVERIFY(early.get());
    QCOMPARE(late.wait_for(0ms), std::future_status::timeout);
    clock.advance(-50ms);
    QCOMPARE(clock.now(), 1100);
    clock.advance(500ms);
    QVERIFY(late.get());
    QCOMPARE(clock.now(), 1600);
}

void SteppableClockTest::passedTimesDoNotWait()
{
    SteppableClock clock(1000);
    QVERIFY(clock.wait(0ms, {}));
    QVERIFY(clock.wait(-5ms, {}));
    QVERIFY(clock.waitUntil(1000, {}));
    std::stop_source stopped;
    stopped.request_stop();
    QVERIFY(!clock.waitUntil(1000, stopped.get_token()));
    QVERIFY(!clock.wait(1h, stopped.get_token()));
    QVERIFY(!clock.waitForWaiters(1, 0ms));
}

void SteppableClockTest::stopEndsTheWait()
{
    SteppableClock clock;
    std::stop_source stop;
    std::future<bool> stopped =
        std::async(std::launch::async, [&] { return clock.wait(1h, stop.get_token()); });
    std::future<bool> other = std::async(std::launch::async, [&] { return clock.wait(1h, {}); });
    QVERIFY(clock.waitForWaiters(2));
    stop.request_stop();
    QVERIFY(!stopped.get());
    QVERIFY(clock.waitForWaiters(1));
    clock.advance(1h);
    QVERIFY(other.get());
}

void SteppableClockTest::losesNoWakeUp()
{
    // Threads wait for absolute times while the clock runs past them as fast as it can: whoever misses a step
    // would wait for ever, and the test would run into its time limit.
    constexpr int threads = 8;
    constexpr int waits = 400;
    SteppableClock clock(0);
    std::atomic<int> reached = 0;
    std::vector<std::jthread> waiting;
    waiting.reserve(threads);
    for (int thread = 0; thread < threads; ++thread) {
        waiting.emplace_back([&clock, &reached, thread] {
            for (int wait = 1; wait <= waits; ++wait) {
                const std::int64_t time = wait * threads + thread;
                if (clock.waitUntil(time, {}) && clock.now() >= time)
                    ++reached;
            }
        });
    }
    for (int step = 0; step < (waits + 1) * threads; ++step)
        clock.advance(1ms);
    waiting.clear();
    QCOMPARE(reached.load(), threads * waits);
    QCOMPARE(clock.waiters(), 0);
}

QTEST_GUILESS_MAIN(SteppableClockTest)
#include "tst_steppableclock.moc"
