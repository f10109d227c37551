// Log lines of FFmpeg's libraries.
#pragma once

#include <cstdarg>
#include <functional>

namespace sdk::streams {

/// Receives lines of every level, on the thread that logs them. `source` is the logging object (with an
/// AVClass as its first member) or null; `level` is one of AV_LOG_*. `format` and `arguments` are those of
/// printf, and are valid during the call.
using LibraryLogHandler = void (*)(void *source, int level, const char *format, va_list arguments);

/// Sets the handler (not null) of the lines of all threads without a ThreadLog. It replaces the last one, at
/// first FFmpeg's own handler, which writes to standard error. FFmpeg has one log callback per process. This
/// function and ThreadLog share it: other code must not call av_log_set_callback(). Thread-safe.
void setLibraryLogHandler(LibraryLogHandler handler);

/// During its lifetime, its listener receives the lines that FFmpeg logs on the thread that created it,
/// during the call that logs them. The handler of the process and earlier ThreadLogs of the thread do not
/// receive them. To be destroyed on the same thread, in reverse order of creation.
class ThreadLog
{
public:
    /// Called with lines of every level; the arguments are those of LibraryLogHandler.
    using Listener = std::function<void(int level, const char *format, va_list arguments)>;

    /// `listener` must not be empty.
    explicit ThreadLog(Listener listener);
    ~ThreadLog();
    ThreadLog(const ThreadLog &) = delete;
    ThreadLog &operator=(const ThreadLog &) = delete;

private:
    friend void writeLibraryLine(void *source, int level, const char *format, va_list arguments);

    const Listener m_listener;
    ThreadLog *const m_outer;
};

} // namespace sdk::streams
