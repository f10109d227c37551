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
    int number = 0; ///< from 0
    bool connected = true;
};

/// The common data of the snapshots of one device. The functions are called on the thread of the snapshots.
struct SnapTask
{
    sdk::SdkLibraries libraries;
    QString kind;                          ///< passed to SnapThread::captured(); may be empty
    QString folder;                        ///< absolute path of the device's folder
    std::function<bool()> isDeviceCurrent; ///< whether sessionHandle() is still a session with the device
    std::function<qint64()> sessionHandle; ///< changes with a new login
    std::function<QList<SnapChannel>()> channels; ///< for SnapThread: the requested channels; may block
    int tries = snapTries;                        ///< for each channel
};

enum class SnapProblem
{
    None,
    NotConnected, ///< the channel has no camera
    NoFrame,      ///< the stream was refused, no frame was decoded in time, or the snapshot was cancelled
    NotWritten,   ///< the file could not be written
};

struct SnapOutcome
{
    QString path;    ///< a "file:///" URL, empty on failure
    QString message; ///< in the user's language, empty on success
    SnapProblem problem = SnapProblem::None;
    QString reason; ///< details of the problem in the user's language; may be empty
};

/// Opens a separate stream of the channel, waits for a frame, and saves it as "<channel>.jpg" in the folder
/// of the task. Blocks for at most 0.1 s per try plus the responses of the device. A file that cannot be
/// written is reported immediately. A request to stop cancels. Any thread except the main thread.
[[nodiscard]] SnapOutcome takeSnapshot(const SnapTask &task, const SnapChannel &channel,
                                       const std::stop_token &stop);
