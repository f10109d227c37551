// A snapshot of one channel's live picture.
#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <stop_token>

/// Tries for a picture, and the time between two of them.
inline constexpr int snapTries = 25;
inline constexpr int snapPauseMilliseconds = 100;
inline constexpr int snapQuality = 50; ///< of the JPEG files

/// A channel that is to be taken.
struct SnapChannel
{
    int number = 0; ///< from 0
    bool connected = true;
};

/// What to take, and of which session.
struct SnapTask
{
    QString kind;   ///< "liveCapture" or "againCapture", as the signal tells it
    QString folder; ///< of the device: one name without separators, or an absolute path with `ownSession`
    std::function<bool()> isDeviceCurrent; ///< whether the session is still one with that device; any thread
    std::function<qint64()> sessionHandle; ///< of that session, which a new login replaces; any thread
    std::function<QList<SnapChannel>()> channels; ///< called on the thread of the snapshots: it may block
    qint64 ownSession = 0; ///< handle of a session beside the current one; 0 for the current one
    int tries = snapTries; ///< for each channel
};

enum class SnapProblem
{
    None,
    NotConnected, ///< the channel has no camera
    NoPicture,    ///< none has been decoded in time
    NotWritten,   ///< the file could not be
};

struct SnapOutcome
{
    QString path;    ///< a "file:///" address, empty on failure
    QString message; ///< in the user's language, empty on success
    SnapProblem problem = SnapProblem::None;
    QString reason; ///< of the problem beyond its name, in the user's language; may be empty
};

/// Opens a hidden live view of the channel, waits until a picture has been decoded, lets the decoder write it
/// to "snap/<folder>/<channel>.jpg" below the current folder, and closes the view. A file that cannot be
/// written is reported at once, with the reason. Blocks for about 0.1 s for each try at the most, and ends
/// early when `stop` is requested. Any thread but the scene's.
[[nodiscard]] SnapOutcome takeSnapshot(const SnapTask &task, const SnapChannel &channel,
                                       const std::stop_token &stop);
