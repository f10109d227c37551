#include "device/dh/upgrade/upgraderound.h"

#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/threadpriority.h"

#include <algorithm>
#include <utility>

UpgradeRound::UpgradeRound(std::shared_ptr<DeviceStore> store, const sdk::SdkLibraries &libraries,
                           const UpgradeLimits &limits, const std::shared_ptr<BatchEngine> &engine,
                           BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_signals(backEndSignals),
      m_documents([this](const std::function<void()> &write, const std::function<void()> &written) {
          writeDocument(write, written);
      }),
      m_runner(std::make_unique<UpgradeRunner>(
          libraries, limits, engine,
          UpgradeRunner::Watchers{
              .changed = [this](const UpgradeOrder &order, const UpgradeState &state) { note(order, state); },
              .roundEnded =
                  [this] {
                      m_signals.queue([this] { noteEnd(); });
                  }}))
{
    m_documentFiles.setMaxThreadCount(1);
}

UpgradeRound::~UpgradeRound()
{
    waitForDocuments();
}

bool UpgradeRound::isUpgradingAt(const QString &ipport) const
{
    if (!m_runner->isUpgrading()) // fast path
        return false;
    // Several rows may have this address; it is unknown which device responds at it.
    const QStringList names = QStringList(ipport) + m_store->namesAt(ipport);
    return std::any_of(names.cbegin(), names.cend(),
                       [this](const QString &name) { return m_runner->isUpgrading(name); });
}

QStringList UpgradeRound::takeChanged()
{
    const std::lock_guard lock(m_changedMutex);
    QStringList names = m_changed.values();
    m_changed.clear();
    return names;
}

void UpgradeRound::note(const UpgradeOrder &order, const UpgradeState &state)
{
    m_store->changeRowNamed(order.row, [&state](QJsonObject &row) {
        row.insert(DeviceRowKey::upgrade, state.percent);
        row.insert(DeviceRowKey::upgraderes, state.result);
        row.insert(DeviceRowKey::upgradetext, state.text);
        if (!state.version.isEmpty())
            row.insert(DeviceRowKey::vision, versionText(state.version));
    });
    m_documents.note(order.key, state.result, state.percent, state.text);
    if (!order.row.isEmpty()) {
        const std::lock_guard lock(m_changedMutex);
        m_changed.insert(order.row);
    }
    noteSchedule();
    if (!UpgradeTools::isRunning(state.result))
        m_signals.noteChangedRows();
}

void UpgradeRound::noteSchedule()
{
    if (m_scheduleNoted.exchange(true))
        return;
    m_signals.queue([this] {
        m_scheduleNoted = false;
        m_signals.emitNow<&CDeviceBase::signalCDeviceUpdateSchedule>(m_runner->percent());
        noteDocuments();
    });
}

void UpgradeRound::noteDocuments()
{
    for (const UpgradeDocuments::Schedule &schedule : m_documents.update())
        m_signals.emitNow<&CDeviceBase::signalCDeviceUpdateScheduleUpgradeByDocument>(schedule.name,
                                                                                      schedule.percent);
}

void UpgradeRound::noteDocumentsBegun()
{
    noteDocuments();
    m_signals.noteChangedRows();
    if (!m_runner->isUpgrading()) // all lines were refused
        m_signals.queue([this] { noteEnd(); });
}

void UpgradeRound::noteEnd()
{
    noteDocuments();
    if (m_runner->isUpgrading()) // another round has started
        return;
    m_isEndHeldBack = m_documents.hasOpen();
    if (!m_isEndHeldBack)
        m_signals.emitNow<&CDeviceBase::signalCDeviceShowUpgradeFinishTip>();
}

void UpgradeRound::writeDocument(const std::function<void()> &write, const std::function<void()> &written)
{
    m_documentFiles.start([this, write, written] {
        sdk::giveWayToWindow();
        write();
        m_signals.queue([this, written] {
            written();
            if (m_isEndHeldBack)
                noteEnd();
            else
                noteDocuments();
        });
    });
}
