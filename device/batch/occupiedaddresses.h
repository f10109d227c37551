#pragma once

#include "device/batch/batchplan.h"

#include <QMultiHash>

/// The addresses that devices of a batch have until they have got another one. The steps that use it run one
/// after another.
class OccupiedAddresses
{
public:
    /// A device may have the address of its row, or still the one that it had before changes that failed.
    explicit OccupiedAddresses(const BatchPlan &plan)
    {
        for (const BatchDevice &device : plan.devices) {
            m_devices.insert(device.ipport.section(QLatin1Char(':'), 0, 0), device);
            m_devices.insert(plan.addressesBefore.value(device.identity).address, device);
        }
    }

    /// The title or MAC of a device other than `identity` that still has `address`; empty when there is none.
    [[nodiscard]] QString holderOf(const QString &address, const QString &identity) const
    {
        if (address.isEmpty())
            return {};
        for (const BatchDevice &device : m_devices.values(address)) {
            if (device.identity != identity)
                return device.title.isEmpty() ? device.identity : device.title;
        }
        return {};
    }

    void leave(const QString &identity)
    {
        m_devices.removeIf([&](const auto &entry) { return entry.value().identity == identity; });
    }

private:
    QMultiHash<QString, BatchDevice> m_devices; ///< by address
};
