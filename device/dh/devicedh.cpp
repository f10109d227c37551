#include "device/dh/devicedh.h"

#include "device/batch/batchengine.h"
#include "device/dh/logins/foundlogins.h"
#include "device/dh/upgrade/upgraderunner.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"
#include "device/registry/logging.h"
#include "device/registry/loginresult.h"
#include "media/snapthread.h"
#include "sdk/netlibrary.h"

#include <mutex>
#include <utility>

namespace {

// The agent's handler is a plain function, and the agent hands it nothing to find a back end by.
std::mutex agentListenerMutex;
CDeviceDH *agentListener = nullptr;

constexpr int maximumSessionThreads = 16;

} // namespace

CDeviceDH::CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                     std::function<SearchSettings()> searchSettings, const UpgradeLimits &upgradeLimits,
                     std::shared_ptr<BatchEngine> engine)
    : CDeviceBase(store), m_libraries(std::move(libraries)), m_searchSettings(std::move(searchSettings)),
      m_engine(engine ? std::move(engine) : std::make_shared<BatchEngine>(m_libraries.clock)),
      m_search(std::make_unique<DeviceSearch>(store, m_libraries)),
      m_foundLogins(std::make_unique<FoundLogins>(store, m_libraries)),
      m_refresh(std::make_unique<DeviceRefresh>(std::move(store), m_libraries)),
      m_keptLogins(m_libraries.net), m_state(std::make_shared<SessionState>(m_tables)),
      m_upgrades(std::make_unique<UpgradeRunner>(
          m_libraries, upgradeLimits, m_engine,
          UpgradeRunner::Watchers{.changed = [this](const UpgradeOrder &order,
                                                    const UpgradeState &state) { noteUpgrade(order, state); },
                                  .roundEnded =
                                      [this] {
                                          QMetaObject::invokeMethod(this, &CDeviceDH::noteUpgradeRoundEnd,
                                                                    Qt::QueuedConnection);
                                      }}))
{
    // One that does not answer keeps none that does waiting.
    m_sessionThreads.setMaxThreadCount(maximumSessionThreads);
    m_documentFiles.setMaxThreadCount(1);
    if (m_libraries.net && !m_libraries.net->NetInit())
        qCWarning(logDevice) << "CDeviceDH: the network library cannot be initialised";

    connect(m_search.get(), &DeviceSearch::rowsAdded, this, &CDeviceBase::signalCDeviceAddDeviceToTable,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::counted, this, &CDeviceBase::signalCDeviceSearchCount,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::limited, this, &CDeviceBase::signalCDeviceSearchLimited,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::progressed, this, &CDeviceBase::signalCDeviceSearchProgress,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::done, this, &CDeviceBase::signalCDeviceSearchDone,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::rowsAdded, m_foundLogins.get(), &FoundLogins::askNew,
            Qt::DirectConnection);
    connect(m_foundLogins.get(), &FoundLogins::rowsChanged, this, &CDeviceDH::noteChangedRows,
            Qt::DirectConnection);
    connect(m_refresh.get(), &DeviceRefresh::rowsChanged, this, &CDeviceDH::noteChangedRows,
            Qt::DirectConnection);

    const std::lock_guard lock(agentListenerMutex);
    agentListener = this;
}

CDeviceDH::~CDeviceDH()
{
    {
        const std::lock_guard lock(agentListenerMutex);
        if (agentListener == this)
            agentListener = nullptr;
    }
    m_upgrades->requestEnd(); // before their batches: nothing stops that the user has not stopped
    m_engine->requestEnd();
    m_search->requestStop();
    m_refresh->requestStop();
    m_foundLogins->requestStop();
    m_snapshots.reset();
    m_upgrades->end();
    m_sessionThreads.clear();
    endSession();
    m_keptLogins.letAllGo();
    if (m_libraries.net)
        m_libraries.net->NetCleanup(); // cuts short the waits of running searches
    m_engine->end();
    m_sessionThreads.waitForDone();
    m_documentFiles.waitForDone();
    m_search.reset();
    m_foundLogins.reset();
    m_refresh.reset();
}

void CDeviceDH::factoryEnds()
{
    m_upgrades->requestEnd();
    m_engine->requestEnd();
    m_snapshots.reset();
    m_upgrades->end();
    noteUpgradeDocuments();
    m_documentFiles.waitForDone();
}

void CDeviceDH::agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort, void *)
{
    switch (event) {
    case sdk::P2PAgentEvent::ServiceConnected:
        qCInfo(logDevice) << "P2P: the service is connected";
        return;
    case sdk::P2PAgentEvent::ServiceLost:
        qCWarning(logDevice) << "P2P: the service is lost";
        tellAgentListener({}, 0);
        return;
    case sdk::P2PAgentEvent::TunnelOpened:
        qCInfo(logDevice) << "P2P: port" << localPort << "leads to" << deviceId;
        return;
    case sdk::P2PAgentEvent::TunnelBroken:
        qCWarning(logDevice) << "P2P: the tunnel to" << deviceId << "on port" << localPort << "is broken";
        tellAgentListener(QString::fromUtf8(deviceId), localPort);
        return;
    }
    qCWarning(logDevice) << "P2P: event" << static_cast<int>(event) << "of" << deviceId << localPort;
}

void CDeviceDH::tellAgentListener(const QString &deviceId, int localPort)
{
    const std::lock_guard lock(agentListenerMutex);
    if (!agentListener)
        return;
    // Queued events of an object that is gone are dropped.
    QMetaObject::invokeMethod(
        agentListener,
        [listener = agentListener, deviceId, localPort] { listener->noteBrokenTunnel(deviceId, localPort); },
        Qt::QueuedConnection);
}

void CDeviceDH::noteBrokenTunnel(const QString &deviceId, int localPort)
{
    const bool isListed =
        store().changeRowAt(QStringLiteral("127.0.0.1:%1").arg(localPort), [](QJsonObject &row) {
            row.insert(DeviceRowKey::res, resultCode(LoginResult::NetworkFailure));
        });
    // The tunnel to a device's web page has no row, nor has one whose device a search has taken off the list.
    if (isListed || deviceId.isEmpty())
        Q_EMIT signalCDeviceTunnelBroken(deviceId, localPort);
}
