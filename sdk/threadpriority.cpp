#include "sdk/threadpriority.h"

#include <atomic>

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace sdk {

namespace {

std::atomic<bool> hasWindow = false;

} // namespace

void expectWindow() noexcept
{
    hasWindow = true;
}

void giveWayToWindow() noexcept
{
    if (!hasWindow)
        return;
#ifdef __linux__
    // A thread of this niceness gets about a tenth of the processor time of a normal one. It is relative to
    // the first thread of the process: relative to the calling thread, it would rise from thread to thread.
    constexpr int step = 10;
    constexpr int mostNice = 19;
    const int usual = getpriority(PRIO_PROCESS, static_cast<id_t>(getpid()));
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), usual + step < mostNice ? usual + step : mostNice);
#endif
}

} // namespace sdk
