// Snapshots of live pictures, off the scene's thread.
#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <functional>
#include <stop_token>

/// A channel that is to be taken.
struct SnapChannel
{
    int number = 0; ///< from 0
    bool connected = true;
};

/// What to take, and of which session.
struct SnapTask
{
    QString kind;                          ///< "liveCapture" or "againCapture", as the signal tells it
    QString folder;                        ///< of the device, one name without separators
    std::function<bool()> isDeviceCurrent; ///< whether the session is still one with that device; any thread
    std::function<qint64()> sessionHandle; ///< of that session, which a new login replaces; any thread
    std::function<QList<SnapChannel>()> channels; ///< called on the thread of the snapshots: it may block
};

/// Takes snapshots one after another: opens a hidden live view of the channel, waits until a picture has been
/// decoded, lets the decoder write it to "snap/<folder>/<channel>.jpg" below the current folder, and closes
/// the view. A file that cannot be written is reported at once, with the reason. One task after another; the
/// thread runs while there is one.
class SnapThread : public QThread
{
    Q_OBJECT
public:
    /// Tries for a picture, and the time between two of them.
    static constexpr int maximumTries = 25;
    static constexpr int pauseMilliseconds = 100;
    static constexpr int quality = 50; ///< of the JPEG files

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
    struct Outcome
    {
        QString path;
        QString message;
    };

    void perform(const SnapTask &task);
    [[nodiscard]] Outcome takeOne(const SnapTask &task, const SnapChannel &channel, const QString &folder);

    /// Returns the message for the user, empty on success.
    [[nodiscard]] QString savePicture(const SnapTask &task, int channel, const QString &file);

    QMutex m_mutex;
    QList<SnapTask> m_tasks;
    bool m_isWorking = false;
    std::stop_source m_stop;
};
