#include "device/dh/configuration/devicereservations.h"

#include "device/batch/batchplan.h"
#include "device/store/devicestore.h"

#include <utility>

DeviceReservations::DeviceReservations(std::shared_ptr<DeviceStore> store,
                                       std::shared_ptr<BatchEngine> engine, UpgradeCheck isUpgradingAt)
    : m_store(std::move(store)), m_engine(std::move(engine)), m_isUpgradingAt(std::move(isUpgradingAt))
{
}

BatchEngine::Reservation DeviceReservations::reserve(const QString &ipport, const StepControl &control) const
{
    // An upgrade step takes minutes: callers refuse conflicting requests instead of waiting.
    if (m_isUpgradingAt(ipport))
        return {};
    return m_engine->reserve(workKey(m_store->rowAt(ipport), ipport, ipport), control.stopToken());
}
