// Lines that FFmpeg's libraries write about what they do.
#pragma once

#include <cstdarg>
#include <functional>

namespace sdk::streams {

/// Gets lines of every level, on the thread that they are of. `source` is the object that speaks (with an
/// AVClass as its first member) or null; `level` is one of AV_LOG_*. `format` and `arguments` are those of
/// printf, and end with the call.
using LibraryLogHandler = void (*)(void *source, int level, const char *format, va_list arguments);

/// Sets what gets the lines of all threads without a ThreadLog. The libraries have one handler for the
/// process, so it is set here by each part that needs one. Thread-safe.
void setLibraryLogHandler(LibraryLogHandler handler);

/// Takes the lines of the calling thread for as long as it lives: nobody else gets them. To be destroyed on
/// the same thread, in reverse order of the making.
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
