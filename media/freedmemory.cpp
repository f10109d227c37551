#include "media/freedmemory.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <cstdlib> // tells which C library it is

#ifdef __GLIBC__
#include <malloc.h>
#endif

void limitFreedMemory()
{
#ifdef __GLIBC__
    constexpr int blockOfItsOwn = 128 * 1024; // the size that glibc begins with; set, it stays
    constexpr int keptAtTheEnd = 1024 * 1024;
    constexpr int heaps = 4;
    mallopt(M_MMAP_THRESHOLD, blockOfItsOwn);
    mallopt(M_TRIM_THRESHOLD, keptAtTheEnd);
    mallopt(M_ARENA_MAX, heaps);
#endif
}

void returnFreedMemory()
{
#ifdef __GLIBC__
    using namespace std::chrono_literals;
    static std::atomic<bool> isDue = false;
    if (!QCoreApplication::instance() || isDue.exchange(true))
        return;
    QTimer::singleShot(2s, QCoreApplication::instance(), [] {
        isDue = false;
        QThreadPool::globalInstance()->start([] { malloc_trim(0); }); // takes some milliseconds
    });
#endif
}
