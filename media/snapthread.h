// Snapshots on a separate thread.
#pragma once

#include "media/snapshot.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>

#include <stop_token>

/// Takes the snapshots of its tasks one after another, on a separate thread. That thread runs while there are
/// tasks. The object is used on the thread that created it.
class SnapThread : public QThread
{
    Q_OBJECT
public:
    explicit SnapThread(QObject *parent = nullptr) : QThread(parent) {}

    /// Cancels all tasks and waits for the thread: for SnapTask::channels() or until the device of the
    /// current snapshot has responded.
    ~SnapThread() override;

    /// Adds a task after the others and starts the thread, if it is not running. Returns at once. The
    /// functions of the task are called on the separate thread.
    void take(SnapTask task);

Q_SIGNALS:
    /// Emitted on the separate thread, once for each channel whose snapshot was started; a snapshot that is
    /// cancelled while it runs is reported as a failure. `kind` is SnapTask::kind, `channel` is from 0.
    /// `path` is "file:///" and the absolute path of the JPEG file, empty on failure. `message` is the reason
    /// of a failure in the user's language, empty on success.
    void captured(const QString &kind, int channel, const QString &path, const QString &message);

protected:
    void run() override;

private:
    void perform(const SnapTask &task);

    QMutex m_mutex;           ///< guards the two members below
    QList<SnapTask> m_tasks;  ///< that were not started
    bool m_isWorking = false; ///< false once the thread has found no task
    std::stop_source m_stop;
};
