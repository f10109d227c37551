// Calls of the D-Bus with a time limit.
#pragma once

#include <gio/gio.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

/// Releases a reference to an object of GLib.
struct ObjectRelease
{
    void operator()(gpointer object) const { g_object_unref(object); }
};
template<typename Object>
using ObjectOwner = std::unique_ptr<Object, ObjectRelease>;

struct ErrorRelease
{
    void operator()(GError *error) const { g_error_free(error); }
};
using ErrorOwner = std::unique_ptr<GError, ErrorRelease>;

/// Runs asynchronous operations of GLib one after another and waits for each of them. A service that does not
/// respond blocks the caller at most one second longer than the limit, even if it ignores the cancellation.
/// All functions except interrupt() are called on one thread.
class BusCalls
{
public:
    /// Starts an operation, which calls the callback with the user data at its end.
    using Start = std::function<void(GCancellable *, GAsyncReadyCallback, gpointer)>;

    BusCalls();
    ~BusCalls();
    BusCalls(const BusCalls &) = delete;
    BusCalls &operator=(const BusCalls &) = delete;

    /// Runs an operation and returns its result. Null if it has not ended within `limit`, or after
    /// interrupt(): the operation is cancelled, which also closes a prompt.
    [[nodiscard]] ObjectOwner<GAsyncResult> run(std::chrono::milliseconds limit, const Start &start);

    /// Ends run() within about a second. Each later one returns null immediately. Any thread.
    void interrupt();

private:
    void waitFor(const ObjectOwner<GAsyncResult> &result, std::chrono::milliseconds limit) const;

    GMainContext *const m_context; ///< of the callbacks; iterated by run() only
    std::atomic<bool> m_isInterrupted = false;
};
