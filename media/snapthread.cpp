#include "media/snapthread.h"

#include <QMutexLocker>

#include <utility>

SnapThread::~SnapThread()
{
    m_stop.request_stop();
    wait();
}

void SnapThread::take(SnapTask task)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_tasks.append(std::move(task));
        if (m_isWorking)
            return;
        m_isWorking = true;
    }
    wait(); // the thread may still be ending
    start();
}

void SnapThread::run()
{
    while (true) {
        SnapTask task;
        {
            const QMutexLocker lock(&m_mutex);
            if (m_tasks.isEmpty() || m_stop.stop_requested()) {
                m_isWorking = false;
                return;
            }
            task = m_tasks.takeFirst();
        }
        perform(task);
    }
}

void SnapThread::perform(const SnapTask &task)
{
    for (const SnapChannel &channel : task.channels()) {
        if (m_stop.stop_requested())
            return;
        const SnapOutcome outcome = takeSnapshot(task, channel, m_stop.get_token());
        Q_EMIT captured(task.kind, channel.number, outcome.path, outcome.message);
    }
}
