#include "device/dh/upgrade/upgraderunner.h"

#include <utility>

namespace {

/// Maximum wait of end() for running upgrades.
constexpr std::chrono::milliseconds endWait(500);

/// The runner tracks its upgrades itself and ignores the engine's events.
class NoWatcher : public BatchWatcher
{
public:
    void started(std::size_t) override {}
    void finished(std::size_t, const StepOutcome &) override {}
    void paused() override {}
    void ended() override {}
};

UpgradeState endOf(UpgradeTools::Result result)
{
    return {
        .result = result, .percent = 0, .text = UpgradeTools::text(result), .version = {}, .versions = {}};
}

StepOutcome outcomeOf(const UpgradeState &state)
{
    StepOutcome outcome = {.result = UpgradeTools::batchResult(state.result), .text = state.text};
    if (state.result == UpgradeTools::Success)
        outcome.text = state.versions;
    else if (outcome.text == resultName(outcome.result))
        outcome.text.clear();
    return outcome;
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

DeviceStep UpgradeRunner::step(const UpgradeOrder &order)
{
    const std::shared_ptr<Upgrade> upgrade = enter(order);
    if (upgrade)
        return stepOf(upgrade);
    return [](const StepControl &) {
        return StepOutcome{.result = resultCode(LoginResult::Upgrading), .text = {}};
    };
}

bool UpgradeRunner::start(const UpgradeOrder &order)
{
    const std::shared_ptr<Upgrade> upgrade = enter(order);
    if (!upgrade)
        return false;
    const BatchItem item = {.device = order.device, .step = stepOf(upgrade)};
    const std::lock_guard lock(m_submitting);
    if (!m_engine->append(m_batch, item))
        m_batch = m_engine->start({item}, {.maximumParallel = m_limits.maximumParallel},
                                  std::make_shared<NoWatcher>());
    return true;
}

std::shared_ptr<UpgradeRunner::Upgrade> UpgradeRunner::enter(const UpgradeOrder &order)
{
    auto upgrade = std::make_shared<Upgrade>();
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
        if (m_end.stop_requested() || isRunning)
            return nullptr;
        if (known != m_round.cend())
            m_percentSum -= shareOf((*known)->state);
        m_round.insert(order.key, upgrade);
        m_percentSum += shareOf(upgrade->state);
        ++m_unfinished;
    }
    m_watchers.changed(upgrade->order, upgrade->state); // before another thread can report on it
    return upgrade;
}

DeviceStep UpgradeRunner::stepOf(const std::shared_ptr<Upgrade> &upgrade)
{
    // The deleter runs when the last copy of the step is destroyed.
    const std::shared_ptr<Upgrade> entered(
        upgrade.get(), [this, upgrade](Upgrade *notRun) { endWaiting(*notRun, UpgradeTools::Stopped); });
    return [this, entered](const StepControl &control) {
        return perform(*entered, control);
    };
}

StepOutcome UpgradeRunner::perform(Upgrade &upgrade, const StepControl &control)
{
    if (upgrade.isWaiting.exchange(false)) {
        UpgradeWork device(m_libraries, m_limits, upgrade.order,
                           {.end = m_end.get_token(), .isRequested = upgrade.stopRequested},
                           [&](const UpgradeState &state) { change(upgrade, state); });
        finish(upgrade, device.run(control));
    }
    const std::lock_guard lock(m_mutex);
    return outcomeOf(upgrade.state);
}

void UpgradeRunner::endWaiting(Upgrade &upgrade, UpgradeTools::Result result)
{
    if (upgrade.isWaiting.exchange(false)) // otherwise the runner may be destroyed already
        finish(upgrade, endOf(result));
}

void UpgradeRunner::stop(const QString &key)
{
    std::shared_ptr<Upgrade> upgrade;
    {
        const std::lock_guard lock(m_mutex);
        upgrade = m_round.value(key);
        if (!upgrade)
            return;
        upgrade->stopRequested = true;
    }
    endWaiting(*upgrade, UpgradeTools::Stopped);
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

void UpgradeRunner::requestEnd()
{
    QList<std::shared_ptr<Upgrade>> round;
    {
        const std::lock_guard lock(m_mutex);
        m_end.request_stop();
        round = m_round.values();
    }
    for (const std::shared_ptr<Upgrade> &upgrade : std::as_const(round))
        endWaiting(*upgrade, UpgradeTools::Cut);
    const std::lock_guard lock(m_submitting);
    m_engine->stop(m_batch);
}

void UpgradeRunner::end()
{
    requestEnd();
    QList<std::shared_ptr<Upgrade>> round;
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait_for(lock, endWait, [this] { return m_unfinished == 0 && m_reporting == 0; });
        round = m_round.values();
    }
    // The remaining requests are aborted when the library is released. Their later reports are ignored.
    for (const std::shared_ptr<Upgrade> &upgrade : std::as_const(round))
        finish(*upgrade, endOf(UpgradeTools::Cut));
}

void UpgradeRunner::change(Upgrade &upgrade, const UpgradeState &state)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!UpgradeTools::isRunning(upgrade.state.result))
            return;
        m_percentSum += shareOf(state) - shareOf(upgrade.state);
        upgrade.state = state;
    }
    m_watchers.changed(upgrade.order, state);
}

void UpgradeRunner::finish(Upgrade &upgrade, const UpgradeState &state)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!UpgradeTools::isRunning(upgrade.state.result))
            return;
        m_percentSum += shareOf(state) - shareOf(upgrade.state);
        upgrade.state = state;
        ++m_reporting;
    }
    m_watchers.changed(upgrade.order, state);
    bool isLast = false;
    {
        const std::lock_guard lock(m_mutex);
        isLast = --m_unfinished == 0;
    }
    if (isLast)
        m_watchers.roundEnded();
    const std::lock_guard lock(m_mutex);
    --m_reporting;
    m_finished.notify_all();
}
