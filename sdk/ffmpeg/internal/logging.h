// The log of the decoder library and of FFmpeg, and errors that only FFmpeg's log reports.
#pragma once

#include <QLoggingCategory>

namespace sdk::ffmpeg {

/// The category "configtools.sdk.ffmpeg". Its debug lines are FFmpeg's warnings and errors, which are
/// disabled by default: a damaged stream causes many. Its warnings are those of the decoder library.
Q_DECLARE_LOGGING_CATEGORY(ffmpegLog)

/// Redirects FFmpeg's log from standard error to ffmpegLog, for the complete process. Further calls have no
/// effect, unless setLibraryLogHandler() was called in between. Thread-safe.
void routeLog();

/// Detects errors that FFmpeg logs on the calling thread during the object's lifetime. Used only for the two
/// kinds of damage that FFmpeg 5.1 does not report otherwise, as the test streams with holes show:
/// - The Matroska demuxer resynchronises without an error code, and no packet has AV_PKT_FLAG_CORRUPT.
/// - The H.265 decoder replaces missing reference frames without an error code (also with AV_EF_EXPLODE), and
///   no frame has AV_FRAME_FLAG_CORRUPT or decode_error_flags.
class LoggedErrors
{
public:
    LoggedErrors();

    /// Whether FFmpeg has logged an error since the object was created. To be called on the same thread.
    /// Always false before routeLog() was called, and on a thread with a ThreadLog.
    [[nodiscard]] bool any() const;

private:
    const unsigned m_before;
};

} // namespace sdk::ffmpeg
