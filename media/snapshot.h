// A snapshot: an image file of one channel's live stream.
#pragma once

#include "sdk/sdklibraries.h"

#include <QList>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <stop_token>

inline constexpr int snapTries = 25;              ///< per channel
inline constexpr int snapPauseMilliseconds = 100; ///< between two tries
inline constexpr int snapQuality = 50;            ///< of the JPEG files, 1 to 100

/// A requested channel.
struct SnapChannel
{
    int number = 0;        ///< from 0
    bool connected = true; ///< whether the channel has a camera; without one, no stream is requested
};

/// The common data of the snapshots of one device. The functions are called on the thread of the snapshots.
struct SnapTask
{
    sdk::SdkLibraries libraries;
    QString kind;   ///< passed to SnapThread::captured(); may be empty
    QString folder; ///< absolute path of the device's folder, which is created if it is missing
    std::function<bool()> isDeviceCurrent; ///< whether sessionHandle() is still a session with the device
    std::function<qint64()> sessionHandle; ///< the present session; a new login changes it
    /// The requested channels; may block. SnapThread calls it; takeSnapshot() does not.
    std::function<QList<SnapChannel>()> channels;
    int tries = snapTries; ///< number of attempts to save a frame, for each channel
};

enum class SnapProblem
{
    None,
    NotConnected, ///< the channel has no camera
    NoFrame,      ///< the stream was refused, no frame was decoded in time, the snapshot was cancelled, or
                  ///< the session is with another device now
    NotWritten,   ///< the file could not be written
};

struct SnapOutcome
{
    QString path;    ///< "file:///" and the absolute path of the file; empty on failure
    QString message; ///< in the user's language, empty on success
    SnapProblem problem = SnapProblem::None;
    /// Details of the problem in the user's language, of NotWritten as text of the system; may be empty.
    QString reason;
};

/// Opens a separate main stream of the channel, waits for a frame, and saves it as "<channel>.jpg" (from 0)
/// in the folder of the task. An existing file is replaced. Tries again every snapPauseMilliseconds, up to
/// SnapTask::tries times. Blocks for these pauses and for the responses of the device. After a new login it
/// opens the stream again. A refused stream and a file that cannot be written end it immediately. A request
/// to stop ends it before the next pause. Any thread except the main thread, which would block.
[[nodiscard]] SnapOutcome takeSnapshot(const SnapTask &task, const SnapChannel &channel,
                                       const std::stop_token &stop);
