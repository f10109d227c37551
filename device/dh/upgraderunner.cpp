#include "device/dh/upgraderunner.h"

#include "device/logging.h"

#include <algorithm>
#include <system_error>
#include <utility>

UpgradeRunner::UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits, Watchers watchers)
    : m_libraries(std::move(libraries)), m_limits(limits), m_watchers(std::move(watchers))
{
}

UpgradeRunner::~UpgradeRunner()
{
    end();
}

bool UpgradeRunner::start(const UpgradeOrder &order)
{
    const auto upgrade = std::make_shared<Upgrade>();
    upgrade->order = order;
    upgrade->state.text = UpgradeTools::text(UpgradeTools::Waiting);
    {
        const std::lock_guard lock(m_mutex);
        if (m_unfinished == 0) {
            m_round.clear();
            m_percentSum = 0;
        }
        const auto known = m_round.constFind(order.key);
        const bool isRunning = known != m_round.cend() && UpgradeTools::isRunning((*known)->state.result);
        if (m_hasEnded || isRunning || !makeThreadLocked())
            return false;
        if (known != m_round.cend())
            m_percentSum -= shareOf((*known)->state);
        m_round.insert(order.key, upgrade);
        m_percentSum += shareOf(upgrade->state);
        ++m_unfinished;
    }
    m_watchers.changed(upgrade->order, upgrade->state); // before a thread has news of it
    const std::lock_guard lock(m_mutex);
    upgrade->isWaiting = true;
    m_waiting.push_back(upgrade);
    m_added.notify_one();
    return true;
}

bool UpgradeRunner::makeThreadLocked()
{
    if (m_threads.size() >= static_cast<std::size_t>(std::max(m_limits.atOnce, 1)))
        return true;
    try {
        m_threads.emplace_back([this](const std::stop_token &stop) { work(stop); });
    } catch (const std::system_error &error) {
        qCWarning(logDevice) << "No further thread for upgrades:" << error.what();
    }
    return !m_threads.empty();
}

void UpgradeRunner::stop(const QString &key)
{
    std::shared_ptr<Upgrade> upgrade;
    bool wasWaiting = false;
    {
        const std::lock_guard lock(m_mutex);
        upgrade = m_round.value(key);
        if (!upgrade)
            return;
        upgrade->stopAsked = true;
        wasWaiting = std::exchange(upgrade->isWaiting, false);
    }
    if (wasWaiting)
        finish(upgrade, {.result = UpgradeTools::Stopped,
                         .percent = 0,
                         .text = UpgradeTools::text(UpgradeTools::Stopped),
                         .version = {}});
}

bool UpgradeRunner::isUpgrading() const
{
    const std::lock_guard lock(m_mutex);
    return m_unfinished > 0;
}

bool UpgradeRunner::isUpgrading(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    const std::shared_ptr<Upgrade> upgrade = m_round.value(key);
    return upgrade && UpgradeTools::isRunning(upgrade->state.result);
}

int UpgradeRunner::shareOf(const UpgradeState &state)
{
    return UpgradeTools::isRunning(state.result) ? state.percent : 100;
}

int UpgradeRunner::percent() const
{
    const std::lock_guard lock(m_mutex);
    return m_round.isEmpty() ? 100 : static_cast<int>(m_percentSum / m_round.size());
}

void UpgradeRunner::end()
{
    std::vector<std::jthread> threads;
    std::deque<std::shared_ptr<Upgrade>> waiting;
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        threads.swap(m_threads);
        waiting.swap(m_waiting);
        std::erase_if(waiting, [](const std::shared_ptr<Upgrade> &upgrade) {
            return !std::exchange(upgrade->isWaiting, false);
        });
    }
    for (std::jthread &thread : threads)
        thread.request_stop();
    for (std::jthread &thread : threads)
        thread.join();
    for (const std::shared_ptr<Upgrade> &upgrade : waiting)
        finish(upgrade, {.result = UpgradeTools::Cut,
                         .percent = 0,
                         .text = UpgradeTools::text(UpgradeTools::Cut),
                         .version = {}});
}

void UpgradeRunner::work(const std::stop_token &stop)
{
    for (;;) {
        std::shared_ptr<Upgrade> upgrade;
        {
            std::unique_lock lock(m_mutex);
            if (!m_added.wait(lock, stop, [this] { return !m_waiting.empty(); }) || stop.stop_requested())
                return;
            upgrade = m_waiting.front();
            m_waiting.pop_front();
            if (!std::exchange(upgrade->isWaiting, false)) // it was stopped
                continue;
        }
        UpgradeWork device(m_libraries, m_limits, upgrade->order, upgrade->stopAsked,
                           [&](const UpgradeState &state) { change(*upgrade, state); });
        finish(upgrade, device.run(stop));
    }
}

void UpgradeRunner::change(Upgrade &upgrade, const UpgradeState &state)
{
    {
        const std::lock_guard lock(m_mutex);
        m_percentSum += shareOf(state) - shareOf(upgrade.state);
        upgrade.state = state;
    }
    m_watchers.changed(upgrade.order, state);
}

void UpgradeRunner::finish(const std::shared_ptr<Upgrade> &upgrade, const UpgradeState &state)
{
    change(*upgrade, state);
    bool isLast = false;
    {
        const std::lock_guard lock(m_mutex);
        isLast = --m_unfinished == 0;
    }
    if (isLast)
        m_watchers.roundEnded();
}
