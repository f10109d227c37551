#include "secrets/internal/buscall.h"

namespace {

/// Of a cancelled operation.
constexpr std::chrono::milliseconds longestCancellation{1000};

/// The result of an operation. `isAwaited` is false after its time limit.
struct PendingCall
{
    ObjectOwner<GAsyncResult> result;
    bool isAwaited = true;
};

void takeResult(GObject *, GAsyncResult *result, gpointer data)
{
    auto *call = static_cast<PendingCall *>(data);
    if (call->isAwaited)
        call->result.reset(static_cast<GAsyncResult *>(g_object_ref(result)));
    else
        delete call;
}

gboolean endIteration(gpointer)
{
    return G_SOURCE_REMOVE;
}

} // namespace

BusCalls::BusCalls() : m_context(g_main_context_new()) {}

BusCalls::~BusCalls()
{
    g_main_context_unref(m_context);
}

void BusCalls::waitFor(const ObjectOwner<GAsyncResult> &result, std::chrono::milliseconds limit) const
{
    const auto end = std::chrono::steady_clock::now() + limit;
    GSource *timer = g_timeout_source_new(static_cast<guint>(limit.count()) + 1);
    g_source_set_callback(timer, &endIteration, nullptr, nullptr);
    g_source_attach(timer, m_context);
    while (!result && !m_isInterrupted && std::chrono::steady_clock::now() < end)
        g_main_context_iteration(m_context, TRUE);
    g_source_destroy(timer);
    g_source_unref(timer);
}

ObjectOwner<GAsyncResult> BusCalls::run(std::chrono::milliseconds limit, const Start &start)
{
    if (m_isInterrupted)
        return nullptr;
    g_main_context_push_thread_default(m_context);
    const ObjectOwner<GCancellable> cancellable(g_cancellable_new());
    auto call = std::make_unique<PendingCall>();
    start(cancellable.get(), &takeResult, call.get());
    waitFor(call->result, limit);
    const bool isInTime = call->result != nullptr;
    if (!isInTime) {
        g_cancellable_cancel(cancellable.get());
        const auto end = std::chrono::steady_clock::now() + longestCancellation;
        while (!call->result && std::chrono::steady_clock::now() < end) {
            if (!g_main_context_iteration(m_context, FALSE))
                g_usleep(1000);
        }
    }
    g_main_context_pop_thread_default(m_context);
    ObjectOwner<GAsyncResult> result = std::move(call->result);
    if (!result) {
        // The operation may still end, and then deletes it.
        call->isAwaited = false;
        static_cast<void>(call.release());
    }
    return isInTime ? std::move(result) : nullptr;
}

void BusCalls::interrupt()
{
    m_isInterrupted = true;
    g_main_context_wakeup(m_context);
}
