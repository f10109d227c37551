// The priority of threads.
#pragma once

namespace sdk {

/// States that this process has a window, so that giveWayToWindow() takes effect. To be called at the start
/// of the application, before it creates threads.
void expectWindow() noexcept;

/// Lowers the priority of the calling thread, and of the threads that it creates afterwards, for their whole
/// life: when all processors are busy, the threads that paint the window run first. The new priority is
/// relative to that of the process's first thread, on which this must not be called. A repeated call has no
/// further effect. Does nothing without expectWindow(), and on systems other than Linux.
void giveWayToWindow() noexcept;

} // namespace sdk
