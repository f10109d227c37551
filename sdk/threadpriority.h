// The priority of threads to the operating system.
#pragma once

namespace sdk {

/// The program has a window, or will have one. To be called before threads begin.
void expectWindow() noexcept;

/// The calling thread gives way to the window from now on, and so do the threads that it begins: on a
/// computer whose processors are all busy, the threads that paint the window run first. Does nothing without
/// a window, and where the system has no such priority for a thread.
void giveWayToWindow() noexcept;

} // namespace sdk
