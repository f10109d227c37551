#include "media/freedmemory.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <cstdlib> // defines __GLIBC__

#ifdef __GLIBC__
#include <malloc.h>
#endif

void limitFreedMemory()
{
#ifdef __GLIBC__
    constexpr int mmapThreshold = 128 * 1024; // the default; setting it disables the dynamic threshold
    constexpr int trimThreshold = 1024 * 1024;
    constexpr int mostHeaps = 4;
    mallopt(M_MMAP_THRESHOLD, mmapThreshold);
    mallopt(M_TRIM_THRESHOLD, trimThreshold);
    mallopt(M_ARENA_MAX, mostHeaps);
#endif
}

void returnFreedMemory()
{
#ifdef __GLIBC__
    using namespace std::chrono_literals;
    static std::atomic<bool> isScheduled = false;
    if (!QCoreApplication::instance() || isScheduled.exchange(true))
        return;
    // Queued: a timer needs the event loop of its thread, which a caller on another thread may lack.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [] {
            QTimer::singleShot(2s, QCoreApplication::instance(), [] {
                isScheduled = false;
                QThreadPool::globalInstance()->start([] { malloc_trim(0); }); // takes some milliseconds
            });
        },
        Qt::QueuedConnection);
#endif
}
