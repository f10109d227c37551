#include "media/snapshot.h"

#include "media/videoitem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <filesystem>
#include <system_error>

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

SnapOutcome notWritten(const QString &reason)
{
    return {.path = {},
            .message = QCoreApplication::translate("SnapThread", "抓图失败，图片无法写入：%1").arg(reason),
            .problem = SnapProblem::NotWritten,
            .reason = reason};
}

SnapOutcome noPicture(const QString &reason = QString())
{
    return {.path = {},
            .message = QCoreApplication::translate("SnapThread", "抓图失败"),
            .problem = SnapProblem::NoPicture,
            .reason = reason};
}

/// `file` is where the picture goes.
SnapOutcome savePicture(const SnapTask &task, int channel, const QString &file, const std::stop_token &stop)
{
    VideoItem view;
    view.setChannelId(channel);
    view.setSession(task.ownSession);
    for (int attempt = 0; attempt < task.tries && !stop.stop_requested(); ++attempt) {
        if (attempt > 0)
            QThread::msleep(snapPauseMilliseconds);
        if (!task.isDeviceCurrent())
            return noPicture(); // its channels are another device's
        // A new login ends the stream with its session.
        if (attempt == 0 || view.loginHandle() != task.sessionHandle()) {
            // Another device may be logged in to meanwhile: its picture must not pass for this one's.
            const bool isBegun = view.start() && task.isDeviceCurrent();
            if (!isBegun && view.loginHandle() == task.sessionHandle())
                return noPicture(view.text());
            if (!isBegun)
                continue;
        }
        if (view.savePicture(file, snapQuality))
            return {.path = QStringLiteral("file:///") + file,
                    .message = {},
                    .problem = SnapProblem::None,
                    .reason = {}};
        const bool hasPicture =
            view.currentPicture().lookAt([](const DecodedPicture &picture) { return picture.isWhole(); });
        const QString problem = hasPicture ? writeProblem(file, pictureFileSize) : QString();
        if (!problem.isEmpty())
            return notWritten(problem);
    }
    return noPicture();
}

} // namespace

SnapOutcome takeSnapshot(const SnapTask &task, const SnapChannel &channel, const std::stop_token &stop)
{
    if (!channel.connected)
        return {.path = {},
                .message = QCoreApplication::translate("SnapThread", "通道未连接"),
                .problem = SnapProblem::NotConnected,
                .reason = QCoreApplication::translate("SnapThread", "通道未连接")};
    const QString folder = task.ownSession != 0
                               ? task.folder
                               : QDir::current().absoluteFilePath(QStringLiteral("snap/") + task.folder);
    const QString file = QDir(folder).absoluteFilePath(QStringLiteral("%1.jpg").arg(channel.number));
    // Without the folder no stream is opened.
    QString problem = folderProblem(folder);
    if (problem.isEmpty())
        problem = writeProblem(file, 0);
    return problem.isEmpty() ? savePicture(task, channel.number, file, stop) : notWritten(problem);
}
