#include "device/dh/devicedh.h"

#include "device/logging.h"
#include "sdk/netlibrary.h"

#include <utility>

CDeviceDH::CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                     std::function<SearchSettings()> searchSettings)
    : CDeviceBase(store), m_libraries(std::move(libraries)), m_searchSettings(std::move(searchSettings)),
      m_search(std::make_unique<DeviceSearch>(std::move(store), m_libraries))
{
    if (m_libraries.net && !m_libraries.net->NetInit())
        qCWarning(logDevice) << "CDeviceDH: the network library cannot be initialised";

    connect(m_search.get(), &DeviceSearch::rowsAdded, this, &CDeviceBase::signalCDeviceAddDeviceToTable,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::counted, this, &CDeviceBase::signalCDeviceSearchCount,
            Qt::DirectConnection);
    connect(m_search.get(), &DeviceSearch::done, this, &CDeviceBase::signalCDeviceSearchDone,
            Qt::DirectConnection);
}

CDeviceDH::~CDeviceDH()
{
    m_search->requestStop();
    endSession();
    if (m_libraries.net)
        m_libraries.net->NetCleanup(); // cuts short the waits of running searches
    m_search.reset();
}

void CDeviceDH::agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort, void *)
{
    switch (event) {
    case sdk::P2PAgentEvent::ServiceConnected:
        qCInfo(logDevice) << "P2P: the service is connected";
        return;
    case sdk::P2PAgentEvent::ServiceLost:
        qCWarning(logDevice) << "P2P: the service is lost";
        return;
    case sdk::P2PAgentEvent::TunnelOpened:
        qCInfo(logDevice) << "P2P: port" << localPort << "leads to" << deviceId;
        return;
    case sdk::P2PAgentEvent::TunnelBroken:
        qCWarning(logDevice) << "P2P: the tunnel to" << deviceId << "on port" << localPort << "is broken";
        return;
    }
    qCWarning(logDevice) << "P2P: event" << static_cast<int>(event) << "of" << deviceId << localPort;
}
