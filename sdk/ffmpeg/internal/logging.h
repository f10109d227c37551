#pragma once

#include <QLoggingCategory>

namespace sdk::ffmpeg {

/// Its debug lines are what FFmpeg says of a stream, which are many for a damaged one: they must be asked
/// for.
Q_DECLARE_LOGGING_CATEGORY(ffmpegLog)

/// Takes FFmpeg's lines to ffmpegLog, instead of to standard error. For the whole process, once is enough.
void routeLog();

/// How many errors FFmpeg has told of on the calling thread: its container readers go on after damage, and
/// say so nowhere else.
[[nodiscard]] unsigned errorLines();

} // namespace sdk::ffmpeg
