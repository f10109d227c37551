#pragma once

#include <QLoggingCategory>

namespace sdk::ffmpeg {

/// Its debug lines are FFmpeg's messages. They are disabled by default: a damaged stream causes many.
Q_DECLARE_LOGGING_CATEGORY(ffmpegLog)

/// Redirects FFmpeg's log from standard error to ffmpegLog, for the complete process. Further calls have no
/// effect.
void routeLog();

/// The number of errors that FFmpeg has logged on the calling thread. Two kinds of damage have no other
/// report: the demuxer resynchronises without an error code or a packet flag, and the H.265 decoder replaces
/// missing reference frames without a frame flag.
[[nodiscard]] unsigned loggedErrors();

} // namespace sdk::ffmpeg
