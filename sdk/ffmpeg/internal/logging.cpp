#include "sdk/ffmpeg/internal/logging.h"

#include "sdk/ffmpeg/internal/avpointers.h"
#include "sdk/streams/librarylog.h"

#include <array>
#include <cstdarg>
#include <cstring>

namespace sdk::ffmpeg {

Q_LOGGING_CATEGORY(ffmpegLog, "configtools.sdk.ffmpeg", QtInfoMsg)

namespace {

thread_local unsigned errorCount = 0; // wraps around

/// Called by FFmpeg on any thread, with lines of every level.
void writeLine(void *source, int level, const char *format, va_list arguments)
{
    if (level <= AV_LOG_ERROR)
        ++errorCount;
    if (level > AV_LOG_WARNING || !ffmpegLog().isDebugEnabled())
        return;
    std::array<char, 400> line{};
    int withPrefix = 1;
    av_log_format_line2(source, level, format, arguments, line.data(), static_cast<int>(line.size()),
                        &withPrefix);
    line.at(std::strcspn(line.data(), "\r\n")) = '\0';
    qCDebug(ffmpegLog, "%s", line.data());
}

} // namespace

void routeLog()
{
    streams::setLibraryLogHandler(&writeLine);
}

LoggedErrors::LoggedErrors() : m_before(errorCount) {}

bool LoggedErrors::any() const
{
    return errorCount != m_before;
}

} // namespace sdk::ffmpeg
