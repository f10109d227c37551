#include "media/streamopening.h"

#include "sdk/netlibrary.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <mutex>
#include <utility>

namespace {

QThreadPool &openingThreads()
{
    constexpr int mostStreams = 16; // of a live window
    static QPointer<QThreadPool> pool;
    if (!pool) {
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(mostStreams);
    }
    return *pool;
}

} // namespace

struct StreamOpening::State
{
    std::shared_ptr<sdk::NetLibrary> net;
    std::mutex mutex; ///< guards the members below
    bool isPending = true;
    Result result; ///< an open stream whose handler has not been called yet
};

StreamOpening::Result StreamOpening::open(sdk::NetLibrary *net, const Request &request)
{
    Result result;
    if (!net)
        return result;
    result.handle = net->NetStartRealStream(request.loginHandle, request.channel, 0, request.kind);
    if (result.handle == 0)
        result.error = net->NetGetLastError();
    return result;
}

StreamOpening::StreamOpening(std::shared_ptr<sdk::NetLibrary> net, const Request &request, QObject *context,
                             Handler handler)
    : m_state(std::make_shared<State>())
{
    m_state->net = std::move(net);
    openingThreads().start([state = m_state, request, context, handler = std::move(handler)] {
        const Result result = open(state->net.get(), request);
        {
            const std::lock_guard lock(state->mutex);
            if (state->isPending) { // the context exists
                state->result = result;
                QMetaObject::invokeMethod(
                    context,
                    [state, handler] {
                        Result opened;
                        {
                            const std::lock_guard handlerLock(state->mutex);
                            if (!std::exchange(state->isPending, false))
                                return;
                            opened = std::exchange(state->result, {});
                        }
                        handler(opened);
                    },
                    Qt::QueuedConnection);
                return;
            }
        }
        if (result.handle != 0)
            state->net->NetStopRealStream(result.handle);
    });
}

StreamOpening::~StreamOpening()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->isPending = false;
    if (const std::int64_t handle = std::exchange(m_state->result.handle, 0); handle != 0)
        openingThreads().start([net = m_state->net, handle] { net->NetStopRealStream(handle); });
}
