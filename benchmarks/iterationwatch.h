#pragma once

#include <QElapsedTimer>
#include <QTimer>

/// Measures the times between iterations of the event loop from start() to stop(), with a timer of 5 ms. Used
/// once. Main thread only.
class IterationWatch
{
public:
    IterationWatch();

    void start();
    void stop() { m_timer.stop(); }

    /// The longest time between two iterations in milliseconds, at least about 5; 0 before the second one.
    [[nodiscard]] qint64 longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceIteration; ///< invalid before the first iteration
    qint64 m_longest = 0;
};
