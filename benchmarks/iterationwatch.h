#pragma once

#include <QElapsedTimer>
#include <QTimer>

/// Measures how long the event loop of the main thread is blocked: from start() to stop(), a timer of 5 ms
/// runs, which expires late if work blocks the loop. Work before the first or after the last expiration is
/// not measured. Used once. Main thread only.
class IterationWatch
{
public:
    IterationWatch();

    void start();
    void stop() { m_timer.stop(); }

    /// The longest time between two expirations of the timer in milliseconds, at least about 5; 0 before the
    /// second one.
    [[nodiscard]] qint64 longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceIteration; ///< invalid before the first expiration
    qint64 m_longest = 0;
};
