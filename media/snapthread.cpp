#include "media/snapthread.h"

#include "media/videoitem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QSaveFile>

#include <filesystem>
#include <system_error>
#include <utility>

namespace {

/// Bytes of a large picture as a file.
constexpr qsizetype pictureFileSize = qsizetype{1024} * 1024;

/// Makes the folder. Returns why that failed, or an empty text.
QString folderProblem(const QString &folder)
{
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(folder.toStdU16String()), error);
    return error ? QString::fromLocal8Bit(error.message()) : QString();
}

/// Why a file of so many bytes cannot be written in place of `path`, or an empty text. The decoder library
/// says only that it failed; a picture that has not come yet and a full disk look the same. What `path` holds
/// stays.
QString writeProblem(const QString &path, qsizetype size)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    for (qsizetype missing = size; missing > 0;) {
        // A disk that becomes full takes a part first; the next write tells the reason.
        const qint64 written = file.write(QByteArray(missing, '\0'));
        if (written <= 0)
            return file.errorString();
        missing -= written;
    }
    return {}; // not committed: the file is removed
}

QString notWritten(const QString &problem)
{
    return QCoreApplication::translate("SnapThread", "抓图失败，图片无法写入：%1").arg(problem);
}

} // namespace

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
    // Without the folder no stream is opened.
    QString problem = folderProblem(folder);
    if (problem.isEmpty())
        problem = writeProblem(file, 0);
    const QString message = problem.isEmpty() ? savePicture(task, channel.number, file) : notWritten(problem);
    return {message.isEmpty() ? QStringLiteral("file:///") + file : QString(), message};
}

QString SnapThread::savePicture(const SnapTask &task, int channel, const QString &file)
{
    QString failed = QCoreApplication::translate("SnapThread", "抓图失败");
    VideoItem view;
    view.setChannelId(channel);
    for (int attempt = 0; attempt < maximumTries && !m_stop.stop_requested(); ++attempt) {
        if (attempt > 0)
            msleep(pauseMilliseconds);
        if (!task.isDeviceCurrent())
            return failed; // its channels are another device's
        // A new login ends the stream with its session.
        if (attempt == 0 || view.loginHandle() != task.sessionHandle()) {
            // Another device may be logged in to meanwhile: its picture must not pass for this one's.
            const bool isBegun = view.start() && task.isDeviceCurrent();
            if (!isBegun && view.loginHandle() == task.sessionHandle())
                return failed;
            if (!isBegun)
                continue;
        }
        if (view.savePicture(file, quality))
            return {};
        const bool hasPicture =
            view.currentPicture().lookAt([](const DecodedPicture &picture) { return picture.isWhole(); });
        const QString problem = hasPicture ? writeProblem(file, pictureFileSize) : QString();
        if (!problem.isEmpty())
            return notWritten(problem);
    }
    return failed;
}
