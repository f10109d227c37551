// The application object of the tour, which measures how long the application handles an event.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <utility>

/// The driver runs within the handling of one event. The events that the application receives meanwhile are
/// measured, without the driver's own work. Main thread only.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        constexpr int withinDriver = 1;
        if (m_depth != withinDriver || QThread::currentThread() != thread()) {
            const Level level(m_depth);
            return QApplication::notify(receiver, event);
        }
        QElapsedTimer timer;
        timer.start();
        const Level level(m_depth);
        const bool isHandled = QApplication::notify(receiver, event);
        m_longest = std::max(m_longest, timer.elapsed());
        return isHandled;
    }

    /// The longest time for an event since the last call, in milliseconds.
    [[nodiscard]] qint64 takeLongest() { return std::exchange(m_longest, 0); }

private:
    class Level
    {
    public:
        explicit Level(int &depth) : m_depth(depth) { ++m_depth; }
        ~Level() { --m_depth; }
        Level(const Level &) = delete;
        Level &operator=(const Level &) = delete;

    private:
        int &m_depth;
    };

    inline static thread_local int m_depth = 0; ///< events of other threads are not counted
    qint64 m_longest = 0;
};
