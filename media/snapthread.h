// Snapshots on a separate thread.
#pragma once

#include "media/snapshot.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>

#include <stop_token>

/// Takes the snapshots of its tasks one after another. The thread runs while there are tasks.
class SnapThread : public QThread
{
    Q_OBJECT
public:
    explicit SnapThread(QObject *parent = nullptr) : QThread(parent) {}

    /// Cancels all tasks and waits for the thread.
    ~SnapThread() override;

    /// Adds a task and starts the thread, if it is not running.
    void take(SnapTask task);

Q_SIGNALS:
    /// Emitted once per channel that was not cancelled, on the separate thread. `kind` is that of the task,
    /// `channel` is from 0. `path` is a "file:///" URL, empty on failure. `message` is in the user's
    /// language, empty on success.
    void captured(const QString &kind, int channel, const QString &path, const QString &message);

protected:
    void run() override;

private:
    void perform(const SnapTask &task);

    QMutex m_mutex; ///< guards the two members below
    QList<SnapTask> m_tasks;
    bool m_isWorking = false; ///< false once the thread has found no task
    std::stop_source m_stop;
};
