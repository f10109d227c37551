#pragma once

#include <QElapsedTimer>
#include <QTimer>

/// Measures the iterations of the event loop between start() and stop(). Main thread only.
class IterationWatch
{
public:
    IterationWatch();

    void start();
    void stop() { m_timer.stop(); }

    /// The longest iteration in milliseconds.
    [[nodiscard]] qint64 longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceIteration; ///< invalid before the first iteration
    qint64 m_longest = 0;
};
