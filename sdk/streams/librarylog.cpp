#include "sdk/streams/librarylog.h"

#include "sdk/streams/avpointers.h"

#include <atomic>
#include <mutex>
#include <utility>

namespace sdk::streams {

namespace {

thread_local ThreadLog *logOfThread = nullptr;
std::atomic<LibraryLogHandler> processHandler = &av_log_default_callback;

} // namespace

void writeLibraryLine(void *source, int level, const char *format, va_list arguments)
{
    if (logOfThread)
        logOfThread->m_listener(level, format, arguments);
    else
        processHandler.load()(source, level, format, arguments);
}

namespace {

void takeLines()
{
    static std::once_flag done;
    std::call_once(done, [] { av_log_set_callback(&writeLibraryLine); });
}

} // namespace

void setLibraryLogHandler(LibraryLogHandler handler)
{
    processHandler = handler;
    takeLines();
}

ThreadLog::ThreadLog(Listener listener)
    : m_listener(std::move(listener)), m_outer(std::exchange(logOfThread, this))
{
    takeLines();
}

ThreadLog::~ThreadLog()
{
    logOfThread = m_outer;
}

} // namespace sdk::streams
