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
    std::mutex mutex; ///< of what follows
    bool isWanted = true;
    Result result; ///< its stream is opened and not taken yet
};

StreamOpening::Result StreamOpening::ask(sdk::NetLibrary *net, const Order &order)
{
    Result result;
    if (!net)
        return result;
    result.handle = net->NetStartRealStream(order.loginHandle, order.channel, 0, order.kind);
    if (result.handle == 0)
        result.error = net->NetGetLastError();
    return result;
}

StreamOpening::StreamOpening(std::shared_ptr<sdk::NetLibrary> net, const Order &order, QObject *context,
                             Opened opened)
    : m_state(std::make_shared<State>())
{
    m_state->net = std::move(net);
    openingThreads().start([state = m_state, order, context, opened = std::move(opened)] {
        const Result result = ask(state->net.get(), order);
        {
            // While it is wanted, the context exists.
            const std::lock_guard lock(state->mutex);
            if (state->isWanted) {
                state->result = result;
                QMetaObject::invokeMethod(
                    context,
                    [state, opened] {
                        Result taken;
                        {
                            const std::lock_guard taking(state->mutex);
                            if (!std::exchange(state->isWanted, false))
                                return;
                            taken = std::exchange(state->result, {});
                        }
                        opened(taken);
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
    m_state->isWanted = false;
    if (const std::int64_t handle = std::exchange(m_state->result.handle, 0); handle != 0)
        openingThreads().start([net = m_state->net, handle] { net->NetStopRealStream(handle); });
}
