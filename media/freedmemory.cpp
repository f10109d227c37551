#include "media/freedmemory.h"

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
    malloc_trim(0);
#endif
}
