// The priority of threads.
#pragma once

namespace sdk {

/// To be called at the start of an application with a window, before it creates threads.
void expectWindow() noexcept;

/// Lowers the priority of the calling thread, and of the threads that it creates: when all processors are
/// busy, the threads that paint the window run first. Does nothing without expectWindow(), and on systems
/// without such a priority of a thread.
void giveWayToWindow() noexcept;

} // namespace sdk
