// Limits the freed memory that the allocator keeps in the process.
#pragma once

/// Makes the allocator return large blocks to the system when they are freed. Must be called at start-up,
/// before other threads exist. No effect if the C library is not glibc.
///
/// Decoded frames are large blocks that are allocated and freed on many threads. By default, glibc raises its
/// mmap threshold each time such a block is freed, and creates heaps for threads. After a few live views, the
/// process would keep hundreds of megabytes of free memory.
void limitFreedMemory();

/// Schedules the return of free memory to the system: two seconds after the call, on a thread of the global
/// pool. The call returns immediately. After the delay, memory that the caller and other threads are about to
/// free at the call is returned as well. Further calls within the delay have no effect. Any thread. Requires
/// the event loop of the main thread. No effect without an application object or if the C library is not
/// glibc.
void returnFreedMemory();
