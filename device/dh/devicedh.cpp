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
    if (m_libraries.net)
        m_libraries.net->NetCleanup(); // cuts short the waits of running searches
    m_search.reset();
}
