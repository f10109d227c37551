#include "device/batch/batch.h"

#include "device/models/modelkeys.h"

#include <QCryptographicHash>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <utility>

namespace {

constexpr int frame = 16; // milliseconds

/// Suffix of the engine's key for a device that is being upgraded. Without it, the engine would delay the
/// refusal until the upgrade, which is a step of the engine, has ended.
const QString upgradingSuffix = QStringLiteral(" upgrade");

bool isRefusedLogin(int result)
{
    return result == resultCode(LoginResult::WrongPassword) ||
           result == resultCode(LoginResult::NoSuchAccount) ||
           result == resultCode(LoginResult::AccountLocked);
}

/// Hash of an account and its password, to detect a change without storing the password.
QByteArray loginHash(const DeviceAccount &account)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(account.account.toUtf8());
    hash.addData(QByteArrayView("\0", 1));
    hash.addData(account.password.toUtf8());
    return hash.result();
}

/// Whether the device failed or was not reached.
bool isFailure(int result)
{
    return result != BatchReport::Succeeded && result != BatchReport::Waiting &&
           !BatchReport::isSkipped(result);
}

StepOutcome refuseForUpgrade(const StepControl & /*control*/)
{
    return {.result = resultCode(LoginResult::Upgrading), .text = {}};
}

} // namespace

/// Collects the reports of the engine's threads until the main thread takes them.
class Batch::Mailbox : public BatchWatcher
{
public:
    struct Finished
    {
        qsizetype index = 0;
        StepOutcome outcome;
        QDateTime time;
    };

    struct Updates
    {
        QList<qsizetype> started;
        QList<Finished> finished;
        bool isPaused = false;
        bool hasEnded = false;
    };

    explicit Mailbox(Batch *batch) : m_batch(batch) {}

    void started(std::size_t index) override
    {
        note([index](Updates &updates) { updates.started.append(static_cast<qsizetype>(index)); });
    }

    void finished(std::size_t index, const StepOutcome &outcome) override
    {
        note([&](Updates &updates) {
            updates.finished.append({.index = static_cast<qsizetype>(index),
                                     .outcome = outcome,
                                     .time = QDateTime::currentDateTime()});
        });
    }

    void paused() override
    {
        note([](Updates &updates) { updates.isPaused = true; });
    }

    void ended() override
    {
        note([](Updates &updates) { updates.hasEnded = true; });
    }

    [[nodiscard]] Updates take()
    {
        const std::lock_guard lock(m_mutex);
        m_isPosted = false;
        return std::exchange(m_updates, {});
    }

    /// Called before the batch is destroyed: nothing is posted to it afterwards.
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_batch = nullptr;
    }

private:
    void note(const std::function<void(Updates &updates)> &add)
    {
        const std::lock_guard lock(m_mutex);
        add(m_updates);
        if (m_batch && !std::exchange(m_isPosted, true))
            QMetaObject::invokeMethod(&m_batch->m_frame, qOverload<>(&QTimer::start), Qt::QueuedConnection);
    }

    std::mutex m_mutex;
    Batch *m_batch;
    Updates m_updates;
    bool m_isPosted = false;
};

Batch::Batch(BatchEngine &engine, BatchPlan plan, QObject *parent)
    : QObject(parent), m_engine(engine), m_plan(std::move(plan)), m_title(m_plan.title),
      m_mailbox(std::make_shared<Mailbox>(this))
{
    m_frame.setSingleShot(true);
    m_frame.setInterval(frame);
    connect(&m_frame, &QTimer::timeout, this, &Batch::takeUpdates);

    QStringList names;
    names.reserve(m_plan.devices.size());
    m_entries.reserve(m_plan.devices.size());
    m_indexByName.reserve(m_plan.devices.size());
    for (const BatchDevice &device : std::as_const(m_plan.devices)) {
        m_indexByName.insert(device.name, m_entries.size());
        m_entries.append(
            {.device = device, .outcome = {.result = BatchReport::NotDone, .text = {}}, .time = {}});
        names.append(device.name);
    }
    m_report.begin(names);
}

Batch::~Batch()
{
    m_mailbox->close();
    m_engine.stop(m_number);
}

DeviceStep Batch::preparedStep(const BatchDevice &device, const std::shared_ptr<std::once_flag> &flag) const
{
    DeviceStep step = m_plan.stepOf(device);
    if (!m_plan.preparation)
        return step;
    return [step, flag, prepare = m_plan.preparation](const StepControl &control) {
        std::call_once(*flag, [&] { prepare(control); });
        return control.isStopped() ? StepOutcome{.result = BatchReport::NotDone, .text = {}} : step(control);
    };
}

bool Batch::start()
{
    std::vector<BatchItem> items;
    items.reserve(static_cast<std::size_t>(m_plan.devices.size()));
    noteAccountsOfSteps();
    const auto isPrepared = std::make_shared<std::once_flag>();
    for (const BatchDevice &device : std::as_const(m_plan.devices)) {
        // Rows that share an address are different devices for steps that use the MAC.
        const QString login =
            m_plan.isByAddress ? device.login : device.login + QLatin1Char('\n') + device.identity;
        if (device.isUpgrading)
            items.push_back({.device = device.key + upgradingSuffix, .login = {}, .step = &refuseForUpgrade});
        else
            items.push_back({.device = device.key, .login = login, .step = preparedStep(device, isPrepared)});
    }
    m_began = QDateTime::currentDateTime();
    m_start = m_engine.now();
    m_isRunning = true;
    m_number = m_engine.start(std::move(items), m_plan.policy, m_mailbox);
    m_isRunning = m_number != 0;
    Q_EMIT changed();
    return m_isRunning;
}

QString Batch::device() const
{
    if (m_running.isEmpty())
        return {};
    const BatchDevice &device = m_entries.at(m_running.constFirst()).device;
    return device.ipport.isEmpty() ? device.name : device.ipport;
}

double Batch::progress() const
{
    return total() > 0 ? std::max(static_cast<double>(m_done) / total(), m_progress) : 0;
}

void Batch::noteProgress(double progress)
{
    m_progress = std::clamp(progress, 0.0, 1.0);
    noteAdvance();
    Q_EMIT changed();
}

int Batch::secondsLeft() const
{
    constexpr qint64 earliest = 2000; // milliseconds
    const qint64 elapsed = m_engine.now() - m_start;
    if (!m_isRunning || m_advance.progress <= 0 || elapsed < earliest)
        return -1;
    // The estimate is from the last advance. It is unknown once its time has passed without a further
    // advance.
    const double total = static_cast<double>(m_advance.elapsed) / m_advance.progress;
    const double left = total - static_cast<double>(elapsed);
    return left < 0 ? -1 : static_cast<int>(left / 1000);
}

void Batch::noteAdvance()
{
    if (progress() > m_advance.progress)
        m_advance = {progress(), m_engine.now() - m_start};
}

void Batch::stop()
{
    if (!m_isRunning || std::exchange(m_isStopping, true))
        return;
    Q_EMIT changed();
    m_engine.stop(m_number);
}

void Batch::releaseSteps()
{
    m_plan.stepOf = nullptr;
    Q_EMIT changed();
}

void Batch::resume()
{
    if (!std::exchange(m_isPaused, false))
        return;
    Q_EMIT changed();
    m_engine.resume(m_number);
}

void Batch::cancelWaiting(const QString &title)
{
    const QStringList given = m_report.cancelWaiting();
    if (given.isEmpty())
        return;
    m_title = title;
    for (Entry &entry : m_entries) {
        if (entry.outcome.result == BatchReport::Waiting)
            entry.outcome.result = BatchReport::NotDone;
    }
    Q_EMIT resulted(given, QList<int>(given.size(), BatchReport::NotDone));
    Q_EMIT changed();
}

QString Batch::summary() const
{
    return m_isRunning ? m_report.summaryOfRunning() : m_report.summary();
}

QList<const Batch::Entry *> Batch::allEntries() const
{
    QList<const Entry *> entries;
    entries.reserve(m_entries.size());
    QSet<QString> names;
    for (const Batch *batch = this; batch; batch = batch->m_retryOf) {
        for (const Entry &entry : batch->m_entries) {
            if (!names.contains(entry.device.name))
                entries.append(&entry);
        }
        for (const Entry &entry : batch->m_entries)
            names.insert(entry.device.name);
    }
    return entries;
}

void Batch::setRetryOf(Batch *earlier)
{
    m_retryOf = earlier;
    Q_EMIT changed();
}

void Batch::noteAccounts()
{
    if (m_plan.accountOf)
        Q_EMIT changed();
}

int Batch::failedBefore() const
{
    if (!m_retryOf)
        return 0;
    const QList<const Entry *> entries = allEntries();
    return static_cast<int>(
        std::count_if(entries.cbegin() + m_entries.size(), entries.cend(),
                      [](const Entry *entry) { return isFailure(entry->outcome.result); }));
}

QString Batch::refusedAccounts() const
{
    QStringList accounts;
    for (const Entry &entry : m_entries) {
        if (isRefusedLogin(entry.outcome.result) && !entry.account.isEmpty() &&
            !accounts.contains(entry.account))
            accounts.append(entry.account);
    }
    return accounts.join(tr("、"));
}

QStringList Batch::failedIdentities() const
{
    QStringList identities;
    const QList<const Entry *> entries = allEntries();
    for (const Entry *entry : entries) {
        if (isFailure(entry->outcome.result))
            identities.append(entry->device.identity);
    }
    return identities;
}

QStringList Batch::devicesOfRefusedAccounts() const
{
    if (!m_plan.accountOf || !m_plan.canBeRetried)
        return {};
    QSet<QByteArray> refused;
    for (const Entry &entry : m_entries) {
        if (isRefusedLogin(entry.outcome.result))
            refused.insert(entry.login);
    }
    QStringList identities;
    for (const Entry &entry : m_entries) {
        const bool isToCome = !entry.time.isValid();
        if (isRefusedLogin(entry.outcome.result) || (isToCome && refused.contains(entry.login)))
            identities.append(entry.device.identity);
    }
    return identities;
}

QStringList Batch::failedDevices() const
{
    return m_report.devicesNotSucceeded();
}

bool Batch::isRetryable(const Entry &entry) const
{
    return entry.outcome.result != BatchReport::Succeeded && m_plan.stepOf && m_plan.canBeRetried &&
           (maySucceedLater(entry.outcome) || hasOtherAccount(entry));
}

bool Batch::hasOtherAccount(const Entry &entry) const
{
    if (!m_plan.accountOf || !isRefusedLogin(entry.outcome.result))
        return false;
    return loginHash(m_plan.accountOf(entry.device)) != entry.login;
}

bool Batch::hasRetryable() const
{
    const QList<const Entry *> entries = allEntries();
    return m_plan.stepOf && m_plan.canBeRetried &&
           std::any_of(entries.cbegin(), entries.cend(), [this](const Entry *entry) {
               return isRetryable(*entry) || (m_plan.accountOf && isRefusedLogin(entry->outcome.result));
           });
}

QList<BatchDevice> Batch::devicesToRetry() const
{
    QList<BatchDevice> devices;
    const QList<const Entry *> entries = allEntries();
    for (const Entry *entry : entries) {
        if (isRetryable(*entry))
            devices.append(entry->device);
    }
    return devices;
}

QStringList Batch::retryableDevices() const
{
    QStringList names;
    const QList<BatchDevice> devices = devicesToRetry();
    for (const BatchDevice &device : devices)
        names.append(device.name);
    return names;
}

QString Batch::retryRefusal() const
{
    if (m_isRunning)
        return tr("批处理正在进行");
    if (m_report.waiting() > 0)
        return tr("设备正在等待新密码");
    if (!retryableDevices().isEmpty())
        return {};
    if (m_report.failed() + m_report.notDone() + failedBefore() == 0)
        return tr("没有失败或未执行的设备");
    if (!m_plan.canBeRetried)
        return tr("此操作不能在这里重试");
    const QList<const Entry *> entries = allEntries();
    const bool mayHelp = std::any_of(entries.cbegin(), entries.cend(), [this](const Entry *entry) {
        return entry->outcome.result != BatchReport::Succeeded &&
               (maySucceedLater(entry->outcome) || hasOtherAccount(*entry));
    });
    return mayHelp ? tr("只有最近一次批处理可以重试")
                   : tr("这些设备的失败不会因重试而消失，请先更正原因（如密码）");
}

bool Batch::canRetry(const QString &identity) const
{
    return !m_isRunning && std::any_of(m_entries.cbegin(), m_entries.cend(), [&](const Entry &entry) {
        return entry.device.identity == identity && isRetryable(entry);
    });
}

const Batch::Entry *Batch::find(const QString &device) const
{
    const auto index = m_indexByName.constFind(device);
    if (index != m_indexByName.cend())
        return &m_entries.at(*index);
    return m_retryOf ? m_retryOf->find(device) : nullptr;
}

QString Batch::textOf(const QString &device) const
{
    const Entry *entry = find(device);
    return entry ? entry->outcome.text : QString();
}

QVariantList Batch::messagesOf(const QStringList &devices) const
{
    QVariantList messages;
    for (const QString &device : devices) {
        const Entry *entry = find(device);
        if (!entry)
            continue;
        const StepOutcome &outcome = entry->outcome;
        messages.append(QVariantMap{
            {RowKey::device, device},
            {RowKey::message, outcome.text.isEmpty() ? resultName(outcome.result) : outcome.text}});
    }
    return messages;
}

QStringList Batch::textsOf(const QStringList &devices) const
{
    QStringList texts;
    texts.reserve(devices.size());
    for (const QString &device : devices)
        texts.append(textOf(device));
    return texts;
}

QStringList Batch::succeededDevices(int known) const
{
    return m_succeeded.mid(known);
}

int Batch::partlyDone() const
{
    return static_cast<int>(std::count_if(m_entries.cbegin(), m_entries.cend(), [](const Entry &entry) {
        return entry.outcome.result == BatchReport::Succeeded && !entry.outcome.text.isEmpty();
    }));
}

void Batch::takeUpdates()
{
    const Mailbox::Updates updates = m_mailbox->take();
    m_running.append(updates.started);
    QList<BatchOutcome> outcomes;
    QStringList devices;
    QList<int> results;
    for (const Mailbox::Finished &finished : updates.finished) {
        Entry &entry = m_entries[finished.index];
        outcomes.append({.device = entry.device, .outcome = finished.outcome});
        entry.outcome = finished.outcome;
        entry.outcome.response.clear();
        entry.time = finished.time;
        m_running.removeOne(finished.index);
        ++m_done;
        devices.append(entry.device.name);
        results.append(entry.outcome.result);
        if (entry.outcome.result == BatchReport::Succeeded)
            m_succeeded.append(entry.device.name);
    }
    noteAdvance();
    m_report.note(devices, results);
    deliver(outcomes);
    m_isPaused = m_isPaused || updates.isPaused;
    if (!devices.isEmpty())
        Q_EMIT resulted(devices, results);
    if (updates.hasEnded)
        finish();
    else
        Q_EMIT changed();
}

void Batch::noteAccountsOfSteps()
{
    if (!m_plan.accountOf)
        return;
    for (Entry &entry : m_entries) {
        const DeviceAccount account = m_plan.accountOf(entry.device);
        entry.account = account.account;
        entry.login = loginHash(account);
    }
}

void Batch::deliver(const QList<BatchOutcome> &outcomes) const
{
    if (m_plan.takeOutcomes && !outcomes.isEmpty())
        m_plan.takeOutcomes(outcomes);
}

void Batch::finish()
{
    m_isRunning = false;
    m_isPaused = false;
    m_ended = QDateTime::currentDateTime();
    QList<BatchOutcome> outcomes;
    QStringList notReached;
    for (const Entry &entry : std::as_const(m_entries)) {
        if (entry.time.isValid())
            continue;
        outcomes.append({.device = entry.device, .outcome = entry.outcome});
        notReached.append(entry.device.name);
    }
    deliver(outcomes);
    if (!notReached.isEmpty())
        Q_EMIT resulted(notReached, QList<int>(notReached.size(), BatchReport::NotDone));
    Q_EMIT changed();
    Q_EMIT finished();
}
