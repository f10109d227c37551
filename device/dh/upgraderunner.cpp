#include "device/dh/upgraderunner.h"

#include <utility>

namespace {

/// The engine's batch of upgrades tells nothing that the runner does not know.
class NoWatcher : public BatchWatcher
{
public:
    void started(std::size_t) override {}
    void finished(std::size_t, const StepOutcome &) override {}
    void held() override {}
    void ended() override {}
};

UpgradeState endOf(UpgradeTools::Result result)
{
    return {.result = result, .percent = 0, .text = UpgradeTools::text(result), .version = {}};
}

} // namespace

UpgradeRunner::UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits,
                             std::shared_ptr<BatchEngine> engine, Watchers watchers)
    : m_libraries(std::move(libraries)), m_limits(limits), m_engine(std::move(engine)),
      m_watchers(std::move(watchers))
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
        if (m_hasEnded || isRunning)
            return false;
        if (known != m_round.cend())
            m_percentSum -= shareOf((*known)->state);
        m_round.insert(order.key, upgrade);
        m_percentSum += shareOf(upgrade->state);
        ++m_unfinished;
    }
    m_watchers.changed(upgrade->order, upgrade->state); // before a thread has news of it
    if (!submit(upgrade) && takeWaiting(*upgrade))
        finish(upgrade, endOf(UpgradeTools::Cut));
    return true;
}

bool UpgradeRunner::submit(const std::shared_ptr<Upgrade> &upgrade)
{
    const BatchItem item = {.device = upgrade->order.key,
                            .step = [this, upgrade](const StepControl &control) {
                                return perform(upgrade, control);
                            }};
    const std::lock_guard lock(m_submitting);
    if (m_engine->append(m_batch, item))
        return true;
    m_batch = m_engine->start({item}, {.atOnce = m_limits.atOnce}, std::make_shared<NoWatcher>());
    return m_batch != 0;
}

StepOutcome UpgradeRunner::perform(const std::shared_ptr<Upgrade> &upgrade, const StepControl &control)
{
    if (!takeWaiting(*upgrade)) // it was stopped
        return {.result = resultCode(LoginResult::NotDone), .text = {}};
    UpgradeWork device(m_libraries, m_limits, upgrade->order, upgrade->stopAsked,
                       [&](const UpgradeState &state) { change(*upgrade, state); });
    finish(upgrade, device.run(control));
    return {};
}

bool UpgradeRunner::takeWaiting(Upgrade &upgrade)
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(upgrade.isWaiting, false);
}

void UpgradeRunner::stop(const QString &key)
{
    std::shared_ptr<Upgrade> upgrade;
    {
        const std::lock_guard lock(m_mutex);
        upgrade = m_round.value(key);
        if (!upgrade)
            return;
        upgrade->stopAsked = true;
    }
    if (takeWaiting(*upgrade))
        finish(upgrade, endOf(UpgradeTools::Stopped));
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
    QList<std::shared_ptr<Upgrade>> round;
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        round = m_round.values();
    }
    {
        const std::lock_guard lock(m_submitting);
        m_engine->stop(m_batch);
    }
    for (const std::shared_ptr<Upgrade> &upgrade : std::as_const(round)) {
        if (takeWaiting(*upgrade))
            finish(upgrade, endOf(UpgradeTools::Cut));
    }
    std::unique_lock lock(m_mutex);
    m_finished.wait(lock, [this] { return m_unfinished == 0 && m_telling == 0; });
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
        ++m_telling;
    }
    if (isLast)
        m_watchers.roundEnded();
    const std::lock_guard lock(m_mutex);
    --m_telling;
    m_finished.notify_all();
}
