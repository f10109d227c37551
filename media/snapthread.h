// Snapshots of live pictures, off the scene's thread.
#pragma once

#include "media/snapshot.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>

#include <stop_token>

/// Takes snapshots one after another, of one task after another; the thread runs while there is one.
class SnapThread : public QThread
{
    Q_OBJECT
public:
    explicit SnapThread(QObject *parent = nullptr) : QThread(parent) {}

    /// Gives up what is being taken, and waits for the thread.
    ~SnapThread() override;

    void take(SnapTask task);

Q_SIGNALS:
    /// Once per channel, from the thread: `path` is a "file:///" address, empty on failure; `message` is
    /// empty on success, else in the user's language.
    void captured(const QString &kind, int channel, const QString &path, const QString &message);

protected:
    void run() override;

private:
    void perform(const SnapTask &task);

    QMutex m_mutex;
    QList<SnapTask> m_tasks;
    bool m_isWorking = false;
    std::stop_source m_stop;
};
