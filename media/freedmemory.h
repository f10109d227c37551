// What the allocator keeps of freed memory.
#pragma once

/// Makes the allocator give large blocks back as soon as they are freed. To be called at the start of the
/// program, before there are other threads. Without effect where the C library is not glibc.
///
/// Live pictures are large blocks that are allocated and freed on many threads. By itself glibc raises the
/// size from which a block gets pages of its own with every such block that is freed, and keeps a heap for
/// each thread: after a few live views hundreds of megabytes that are free stay with the process.
void limitFreedMemory();

/// Gives back what the allocator keeps for later, a moment after the call, on a thread of its own: what the
/// caller and other threads are giving up by then goes along. Calls within that moment count as one. May be
/// called on any thread; does nothing without an application object or where the C library is not glibc.
void returnFreedMemory();
