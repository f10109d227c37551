#include "media/snapthread.h"

#include "media/videoitem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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
    wait(); // a thread that has just found nothing more to do may still be on its way out
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
    const QString folder = QDir::current().absoluteFilePath(QStringLiteral("snap/") + task.folder);
    for (const SnapChannel &channel : task.channels()) {
        if (m_stop.stop_requested())
            return;
        const Outcome outcome = takeOne(task, channel, folder);
        Q_EMIT captured(task.kind, channel.number, outcome.path, outcome.message);
    }
}

SnapThread::Outcome SnapThread::takeOne(const SnapTask &task, const SnapChannel &channel,
                                        const QString &folder)
{
    if (!channel.connected)
        return {{}, QCoreApplication::translate("SnapThread", "通道未连接")};
    const QString file = QDir(folder).absoluteFilePath(QStringLiteral("%1.jpg").arg(channel.number));
    if (QDir().mkpath(folder) && savePicture(task, channel.number, file))
        return {QStringLiteral("file:///") + file, {}};
    return {{}, QCoreApplication::translate("SnapThread", "抓图失败")};
}

bool SnapThread::savePicture(const SnapTask &task, int channel, const QString &file)
{
    VideoItem view;
    view.setChannelId(channel);
    for (int attempt = 0; attempt < maximumTries && !m_stop.stop_requested(); ++attempt) {
        if (attempt > 0)
            msleep(pauseMilliseconds);
        if (!task.isDeviceCurrent())
            return false; // its channels are another device's
        // A new login ends the stream with its session.
        if (attempt == 0 || view.loginHandle() != task.sessionHandle()) {
            // Another device may be logged in to meanwhile: its picture must not pass for this one's.
            const bool isBegun = view.start() && task.isDeviceCurrent();
            if (!isBegun && view.loginHandle() == task.sessionHandle())
                return false;
            if (!isBegun)
                continue;
        }
        if (view.savePicture(file, quality))
            return true;
    }
    return false;
}
