#include "site/network/poller.h"

#include <algorithm>
#include <array>

#include <sys/epoll.h>
#include <sys/eventfd.h>

namespace site {

Poller::Poller()
    : m_epoll(epoll_create1(EPOLL_CLOEXEC)), m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_thread([this](const std::stop_token &stop) { run(stop); })
{
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.fd = m_wakeUp.number();
    epoll_ctl(m_epoll.number(), EPOLL_CTL_ADD, m_wakeUp.number(), &event);
}

Poller::~Poller()
{
    stop();
}

void Poller::stop()
{
    m_thread.request_stop();
    wake();
    if (m_thread.joinable())
        m_thread.join();
}

void Poller::watch(int socket, Handler readable)
{
    {
        const std::lock_guard lock(m_mutex);
        m_handlers[socket] = std::make_shared<Handler>(std::move(readable));
    }
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.fd = socket;
    epoll_ctl(m_epoll.number(), EPOLL_CTL_ADD, socket, &event);
}

void Poller::remove(int socket)
{
    epoll_ctl(m_epoll.number(), EPOLL_CTL_DEL, socket, nullptr);
    const std::lock_guard running(m_running);
    const std::lock_guard lock(m_mutex);
    m_handlers.erase(socket);
}

void Poller::at(Time time, Handler handler)
{
    {
        const std::lock_guard lock(m_mutex);
        m_times.emplace(time, std::move(handler));
    }
    wake();
}

void Poller::wake() const
{
    (void)eventfd_write(m_wakeUp.number(), 1);
}

void Poller::run(const std::stop_token &stop)
{
    std::array<epoll_event, 64> events = {};
    while (!stop.stop_requested()) {
        const int count = epoll_wait(m_epoll.number(), events.data(), static_cast<int>(events.size()),
                                     millisecondsToNext());
        for (int index = 0; index < count && !stop.stop_requested(); ++index)
            runReadable(events[static_cast<std::size_t>(index)].data.fd);
        if (!stop.stop_requested())
            runDue();
    }
}

int Poller::millisecondsToNext()
{
    const std::lock_guard lock(m_mutex);
    if (m_times.empty())
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_times.begin()->first -
                                                                   std::chrono::steady_clock::now());
    constexpr std::int64_t longest = 60000;
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, longest));
}

void Poller::runDue()
{
    for (;;) {
        const std::lock_guard running(m_running);
        Handler handler;
        {
            const std::lock_guard lock(m_mutex);
            const auto next = m_times.begin();
            if (next == m_times.end() || next->first > std::chrono::steady_clock::now())
                return;
            handler = std::move(next->second);
            m_times.erase(next);
        }
        handler();
    }
}

void Poller::runReadable(int socket)
{
    if (socket == m_wakeUp.number()) {
        eventfd_t count = 0;
        (void)eventfd_read(socket, &count);
        return;
    }
    const std::lock_guard running(m_running);
    std::shared_ptr<Handler> handler;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_handlers.find(socket);
        if (found != m_handlers.end())
            handler = found->second;
    }
    if (handler)
        (*handler)();
}

} // namespace site
