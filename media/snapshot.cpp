#include "media/snapshot.h"

#include "media/videostream.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QThread>

#include <filesystem>
#include <system_error>

namespace {

constexpr qsizetype largeImageSize = qsizetype{1024} * 1024; // bytes of a JPEG file

/// Creates the folder. Returns the system's error text, or an empty string.
QString folderProblem(const QString &folder)
{
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(folder.toStdU16String()), error);
    return error ? QString::fromLocal8Bit(error.message()) : QString();
}

/// Why a file of `size` bytes cannot replace `path`; empty if it can. The file at `path` is not changed. The
/// decoder library reports no reason: a missing frame and a full disk have the same result.
QString writeProblem(const QString &path, qsizetype size)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    for (qsizetype missing = size; missing > 0;) {
        // When a disk becomes full, the first write is partial and only the next one fails with the reason.
        const qint64 written = file.write(QByteArray(missing, '\0'));
        if (written <= 0)
            return file.errorString();
        missing -= written;
    }
    return {}; // without commit(), the temporary file is removed
}

SnapOutcome notWritten(const QString &reason)
{
    return {.path = {},
            .message = QCoreApplication::translate("SnapThread", "抓图失败，图片无法写入：%1").arg(reason),
            .problem = SnapProblem::NotWritten,
            .reason = reason};
}

SnapOutcome noFrame(const QString &reason = QString())
{
    return {.path = {},
            .message = QCoreApplication::translate("SnapThread", "抓图失败"),
            .problem = SnapProblem::NoFrame,
            .reason = reason};
}

/// Saves the first frame of the channel's stream as `file`.
SnapOutcome saveFirstFrame(const SnapTask &task, int channel, const QString &file,
                           const std::stop_token &stop)
{
    VideoStream stream(task.libraries);
    qint64 handle = 0; // the session of the stream
    for (int attempt = 0; attempt < task.tries && !stop.stop_requested(); ++attempt) {
        if (attempt > 0)
            QThread::msleep(snapPauseMilliseconds);
        if (!task.isDeviceCurrent())
            return noFrame(); // the session is with another device
        // A new login ends the stream with its session.
        if (attempt == 0 || handle != task.sessionHandle()) {
            stream.stop();
            handle = task.sessionHandle();
            // The device is checked again afterwards: a login to another device may have come first, whose
            // image must not be saved as that of this device.
            const bool isStarted =
                stream.start({.loginHandle = handle, .channel = channel}) && task.isDeviceCurrent();
            if (!isStarted && handle == task.sessionHandle())
                return noFrame(stream.text());
            if (!isStarted)
                continue;
        }
        if (stream.saveFrame(file, snapQuality))
            return {.path = QStringLiteral("file:///") + file,
                    .message = {},
                    .problem = SnapProblem::None,
                    .reason = {}};
        const bool hasFrame =
            stream.currentFrame().read([](const VideoFrame &frame) { return frame.isComplete(); });
        const QString problem = hasFrame ? writeProblem(file, largeImageSize) : QString();
        if (!problem.isEmpty())
            return notWritten(problem);
    }
    return noFrame();
}

} // namespace

SnapOutcome takeSnapshot(const SnapTask &task, const SnapChannel &channel, const std::stop_token &stop)
{
    if (!channel.connected)
        return {.path = {},
                .message = QCoreApplication::translate("SnapThread", "通道未连接"),
                .problem = SnapProblem::NotConnected,
                .reason = QCoreApplication::translate("SnapThread", "通道未连接")};
    const QString file = QDir(task.folder).absoluteFilePath(QStringLiteral("%1.jpg").arg(channel.number));
    // Without a writable folder, no stream is opened.
    QString problem = folderProblem(task.folder);
    if (problem.isEmpty())
        problem = writeProblem(file, 0);
    return problem.isEmpty() ? saveFirstFrame(task, channel.number, file, stop) : notWritten(problem);
}
