#include "device/batch/batchengine.h"

#include "device/registry/deviceimport.h"
#include "device/store/logging.h"
#include "sdk/threadpriority.h"

#include <QCoreApplication>

#include <algorithm>
#include <system_error>
#include <utility>

namespace {

/// Whether a further attempt with the same account may lock it.
bool isRefusal(int result)
{
    return result == resultCode(LoginResult::NoSuchAccount) ||
           result == resultCode(LoginResult::WrongPassword) ||
           result == resultCode(LoginResult::AccountLocked);
}

/// Whether the device has accepted the login, regardless of the result of the request.
bool wasLoggedIn(int result)
{
    switch (static_cast<LoginResult>(result)) {
    case LoginResult::NetworkFailure:
    case LoginResult::ProtocolMismatch:
    case LoginResult::AccountLoggedIn:
    case LoginResult::NotInitialised:
    case LoginResult::NotSupported:
    case LoginResult::AlreadyListed:
    case LoginResult::Upgrading:
    case LoginResult::NotDone:
    case LoginResult::UnknownCertificate:
    case LoginResult::ChangedCertificate:
        return false;
    default:
        return !isRefusal(result) && result != upgradeFileUnusable && result != deviceBusy &&
               result != unusableLine;
    }
}

} // namespace

BatchEngine::BatchEngine(std::shared_ptr<const sdk::Clock> clock) : m_clock(std::move(clock)) {}

std::int64_t BatchEngine::now() const
{
    return m_clock ? m_clock->now() : sdk::SystemClock().now();
}

BatchEngine::~BatchEngine()
{
    end();
}

int BatchEngine::start(std::vector<BatchItem> items, const BatchPolicy &policy,
                       std::shared_ptr<BatchWatcher> watcher)
{
    const auto batch = std::make_shared<Batch>();
    batch->items = std::move(items);
    batch->policy = policy;
    batch->policy.maximumParallel = std::max(policy.maximumParallel, 1);
    batch->watcher = std::move(watcher);

    QHash<QString, std::size_t> firsts;
    firsts.reserve(static_cast<qsizetype>(batch->items.size()));
    for (std::size_t index = batch->items.size(); index-- > 0;)
        firsts.insert(batch->items[index].device, index);
    for (std::size_t index = batch->items.size(); index-- > 0;)
        batch->waiting[firsts.value(batch->items[index].device)].push_back(index);

    int number = 0;
    {
        const std::lock_guard lock(m_mutex);
        if (m_hasEnded)
            return 0;
        number = ++m_lastNumber;
        if (!batch->items.empty()) {
            m_batches.emplace(number, batch);
            addThreads();
            if (m_threads.empty()) {
                m_batches.erase(number);
                return 0;
            }
        }
    }
    if (batch->items.empty())
        batch->watcher->ended();
    m_changed.notify_all();
    return number;
}

bool BatchEngine::append(int number, BatchItem item)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_batches.find(number);
        if (found == m_batches.end() || found->second->isStopped)
            return false;
        Batch &batch = *found->second;
        batch.waiting.emplace(batch.items.size(), Waiting{batch.items.size()});
        batch.items.push_back(std::move(item));
        addThreads();
    }
    m_changed.notify_all();
    return true;
}

void BatchEngine::addThreads()
{
    std::size_t wanted = 0;
    for (const auto &[number, batch] : m_batches)
        wanted += std::min(static_cast<std::size_t>(batch->policy.maximumParallel - batch->usedSlots),
                           batch->waiting.size());
    wanted = std::min(wanted, maximumThreads - m_threads.size() + m_idleThreads);
    try {
        for (std::size_t idle = m_idleThreads; idle < wanted; ++idle) {
            m_threads.emplace_back([this](const std::stop_token &stop) { work(stop); });
            ++m_idleThreads;
        }
    } catch (const std::system_error &error) {
        qCWarning(logDevice) << "No further thread for a batch:" << error.what();
    }
}

bool BatchEngine::isInUse(const QString &device) const
{
    return m_busyDevices.contains(device) || m_reservedDevices.contains(device);
}

BatchEngine::Taken BatchEngine::takeNext()
{
    for (const auto &[number, batch] : m_batches) {
        if (batch->isPaused || batch->usedSlots >= batch->policy.maximumParallel)
            continue;
        for (auto it = batch->waiting.begin(); it != batch->waiting.end(); ++it) {
            const std::size_t index = it->second.back();
            if (isInUse(batch->items[index].device)) {
                if (batch->policy.maximumParallel == 1)
                    break; // with one step at a time, the list order is kept strictly
                continue;
            }
            Taken taken{
                .batch = batch, .number = number, .index = index, .item = std::move(batch->items[index])};
            batch->items[index].device = taken.item.device;
            it->second.pop_back();
            if (!it->second.empty())
                batch->following.insert(taken.item.device, it->second);
            batch->waiting.erase(it);
            m_busyDevices.insert(taken.item.device);
            ++batch->running;
            ++batch->usedSlots;
            return taken;
        }
    }
    return {};
}

bool BatchEngine::hasWork() const
{
    return std::any_of(m_batches.begin(), m_batches.end(), [this](const auto &entry) {
        const Batch &batch = *entry.second;
        const auto isFree = [&](const auto &waiting) {
            return !isInUse(batch.items[waiting.second.back()].device);
        };
        if (batch.isPaused || batch.waiting.empty() || batch.usedSlots >= batch.policy.maximumParallel)
            return false;
        return batch.policy.maximumParallel == 1
                   ? isFree(*batch.waiting.begin())
                   : std::any_of(batch.waiting.begin(), batch.waiting.end(), isFree);
    });
}

void BatchEngine::work(const std::stop_token &stop)
{
    sdk::giveWayToWindow(); // a batch starts as many steps as it may run in parallel
    for (;;) {
        Taken taken;
        {
            std::unique_lock lock(m_mutex);
            if (!m_changed.wait(lock, stop, [this] { return hasWork(); }) || stop.stop_requested())
                return;
            taken = takeNext();
            --m_idleThreads;
        }
        run(std::move(taken));
        const std::lock_guard lock(m_mutex);
        ++m_idleThreads;
    }
}

void BatchEngine::run(Taken taken)
{
    Batch &batch = *taken.batch;
    bool holdsSlot = true;
    const StepOutcome outcome = perform(taken, holdsSlot);
    batch.watcher->finished(taken.index, outcome);

    bool isPausedNow = false;
    {
        const std::lock_guard lock(m_mutex);
        isPausedNow = noteResult(taken, outcome);
        m_busyDevices.remove(taken.item.device);
        if (std::exchange(holdsSlot, false))
            --batch.usedSlots;
        if (Waiting rest = batch.following.take(taken.item.device); !rest.empty())
            batch.waiting.emplace(rest.back(), std::move(rest));
    }
    if (isPausedNow)
        batch.watcher->paused();
    bool hasEnded = false;
    {
        const std::lock_guard lock(m_mutex);
        --batch.running;
        hasEnded = batch.running == 0 && batch.waiting.empty();
        if (hasEnded)
            m_batches.erase(taken.number);
    }
    if (hasEnded)
        batch.watcher->ended();
    m_changed.notify_all();
}

StepOutcome BatchEngine::perform(Taken &taken, bool &holdsSlot)
{
    Batch &batch = *taken.batch;
    StepOutcome notStarted = {.result = resultCode(LoginResult::NotDone), .text = {}};
    {
        const std::lock_guard lock(m_mutex);
        if (batch.isStopped) {
            taken.item.step = nullptr;
            return notStarted;
        }
        const auto refusal = batch.refusals.constFind({taken.item.device, taken.item.login});
        if (refusal != batch.refusals.cend()) {
            taken.item.step = nullptr; // its destructor updates the row; must precede finished()
            return *refusal;
        }
    }
    batch.watcher->started(taken.index);
    const StepControl control(batch.stop.get_token(), m_clock, batch.policy.deadline,
                              [this, &batch, &holdsSlot] { releaseSlot(batch, holdsSlot); });
    StepOutcome outcome = taken.item.step(control);
    if (outcome == notStarted && control.isLate() && !control.isStopped())
        outcome.text = QCoreApplication::translate("BatchResult", "超过时间限制");
    return outcome;
}

void BatchEngine::releaseSlot(Batch &batch, bool &holdsSlot)
{
    const std::lock_guard lock(m_mutex);
    // Each waiting step occupies a thread. If no thread is left for another step, it keeps its slot.
    if (!holdsSlot || (m_threads.size() >= maximumThreads && m_idleThreads == 0))
        return;
    holdsSlot = false;
    --batch.usedSlots;
    addThreads();
    m_changed.notify_all();
}

bool BatchEngine::noteResult(const Taken &taken, const StepOutcome &outcome)
{
    Batch &batch = *taken.batch;
    const std::pair login(taken.item.device, taken.item.login);
    if (isRefusal(outcome.result) && !batch.refusals.contains(login)) {
        batch.refusals.insert(login, outcome);
        ++batch.wrongPasswords;
    } else if (wasLoggedIn(outcome.result)) {
        batch.wrongPasswords = 0;
    }
    const bool isTooOften =
        batch.policy.wrongPasswordsInARow > 0 && batch.wrongPasswords >= batch.policy.wrongPasswordsInARow;
    const bool hasMore = !batch.waiting.empty() || !batch.following.empty();
    return isTooOften && hasMore && !batch.isStopped && !std::exchange(batch.isPaused, true);
}

void BatchEngine::stop(int number)
{
    std::shared_ptr<Batch> batch;
    std::vector<DeviceStep> notStarted; // their destructors may call back: destroyed without the lock
    bool hasEnded = false;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_batches.find(number);
        if (found == m_batches.end())
            return;
        batch = found->second;
        batch->isStopped = true;
        const auto leaveOut = [&](const Waiting &indexes) {
            for (const std::size_t index : indexes)
                notStarted.push_back(std::exchange(batch->items[index].step, {}));
        };
        for (const auto &[first, indexes] : batch->waiting)
            leaveOut(indexes);
        for (const Waiting &indexes : std::as_const(batch->following))
            leaveOut(indexes);
        batch->waiting.clear();
        batch->following.clear();
        hasEnded = batch->running == 0;
        if (hasEnded)
            m_batches.erase(found);
    }
    batch->stop.request_stop(); // runs the stop callbacks of the steps
    if (hasEnded)
        batch->watcher->ended();
}

void BatchEngine::resume(int number)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_batches.find(number);
        if (found == m_batches.end())
            return;
        found->second->isPaused = false;
        found->second->wrongPasswords = 0;
        addThreads();
    }
    m_changed.notify_all();
}

BatchEngine::Reservation::Reservation(Reservation &&other) noexcept
    : m_engine(std::exchange(other.m_engine, nullptr)), m_device(std::move(other.m_device))
{
}

BatchEngine::Reservation::~Reservation()
{
    if (!m_engine)
        return;
    {
        const std::lock_guard lock(m_engine->m_mutex);
        int &count = m_engine->m_reservedDevices[m_device];
        if (--count == 0)
            m_engine->m_reservedDevices.remove(m_device);
    }
    m_engine->m_changed.notify_all();
}

BatchEngine::Reservation BatchEngine::reserve(const QString &device, const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    const bool isFree =
        m_changed.wait(lock, stop, [&] { return m_hasEnded || !m_busyDevices.contains(device); });
    if (!isFree || m_hasEnded)
        return {};
    ++m_reservedDevices[device];
    return {*this, device};
}

void BatchEngine::requestEnd()
{
    std::vector<int> numbers;
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        for (const auto &[number, batch] : m_batches)
            numbers.push_back(number);
    }
    m_changed.notify_all(); // wakes reserve()
    for (const int number : numbers)
        stop(number);
}

void BatchEngine::end()
{
    requestEnd();
    std::vector<std::jthread> threads;
    {
        const std::lock_guard lock(m_mutex);
        threads.swap(m_threads);
    }
    for (std::jthread &thread : threads)
        thread.request_stop();
    threads.clear(); // joins them
}
