#include "device/dh/session/sessionthreads.h"

#include "sdk/netlibrary.h"

#include <QThread>

#include <utility>

namespace {

// Enough threads that devices which do not respond do not delay the others.
constexpr int maximumSessionThreads = 16;

} // namespace

SessionThreads::SessionThreads(std::shared_ptr<sdk::NetLibrary> net, BackEndSignals &backEndSignals)
    : m_net(std::move(net)), m_signals(backEndSignals)
{
    m_threads.setMaxThreadCount(maximumSessionThreads);
}

SessionThreads::~SessionThreads()
{
    waitForDone();
}

void SessionThreads::start(const std::function<void()> &work)
{
    m_threads.start(work);
}

void SessionThreads::runForPage(const PageStep &step, const std::stop_token &stop,
                                const std::function<void(const PageOutcome &outcome)> &ended)
{
    m_threads.start([this, step, stop, ended] {
        if (stop.stop_requested())
            return;
        const PageOutcome outcome = step(StepControl(stop, nullptr, {}, {}));
        if (stop.stop_requested())
            return;
        m_signals.queue([ended, outcome] { ended(outcome); });
    });
}

void SessionThreads::logOutLater(const QList<std::int64_t> &handles)
{
    if (handles.isEmpty())
        return;
    m_threads.start([net = m_net, handles] {
        for (const std::int64_t handle : handles)
            net->NetLogout(handle);
    });
}

void SessionThreads::logOut(std::int64_t handle)
{
    if (QThread::currentThread() == m_signals.receiver()->thread())
        logOutLater({handle});
    else
        m_net->NetLogout(handle);
}
