// Log lines of FFmpeg's libraries.
#pragma once

#include <cstdarg>
#include <functional>

namespace sdk::streams {

/// Receives lines of every level, on the thread that logs them. `source` is the logging object (with an
/// AVClass as its first member) or null; `level` is one of AV_LOG_*. `format` and `arguments` are those of
/// printf, and are valid during the call.
using LibraryLogHandler = void (*)(void *source, int level, const char *format, va_list arguments);

/// Sets the handler of the lines of all threads without a ThreadLog. FFmpeg has one log callback per process,
/// which is shared by this function. Thread-safe.
void setLibraryLogHandler(LibraryLogHandler handler);

/// Receives the lines of the calling thread during its lifetime, instead of any other handler. To be
/// destroyed on the same thread, in reverse order of creation.
class ThreadLog
{
public:
    using Listener = std::function<void(int level, const char *format, va_list arguments)>;

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
