#pragma once

#include "device/batch/batchplan.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

#include <algorithm>
#include <optional>

/// The addresses that devices of a batch have until they have got another one. The steps that use it run one
/// after another.
class OccupiedAddresses
{
public:
    /// A device that has an address which another one is to get.
    struct Holder
    {
        QString title;      ///< its title or identity
        bool stays = false; ///< its own change has failed, and another try cannot succeed
    };

    /// A device may have the address of its row, or still the one that it had before changes that failed.
    explicit OccupiedAddresses(const BatchPlan &plan)
    {
        for (const BatchDevice &device : plan.devices) {
            m_titles.insert(device.identity, device.title.isEmpty() ? device.identity : device.title);
            for (const QString &address : {device.ipport.section(QLatin1Char(':'), 0, 0),
                                           plan.addressesBefore.value(device.identity).address}) {
                m_devices.insert(address, device.identity);
                m_addresses.insert(device.identity, address);
            }
        }
    }

    /// A device other than `identity` that still has `address`.
    [[nodiscard]] std::optional<Holder> holderOf(const QString &address, const QString &identity) const
    {
        const auto [begin, end] = m_devices.equal_range(address);
        const auto other =
            std::find_if(begin, end, [&](const QString &device) { return device != identity; });
        if (address.isEmpty() || other == end)
            return std::nullopt;
        return Holder{.title = m_titles.value(*other), .stays = m_staying.contains(*other)};
    }

    /// The device has got another address.
    void leave(const QString &identity)
    {
        for (const QString &address : m_addresses.values(identity))
            m_devices.remove(address, identity);
    }

    /// The device keeps its address, also in another try.
    void stay(const QString &identity) { m_staying.insert(identity); }

private:
    QMultiHash<QString, QString> m_devices;   ///< identities by address
    QMultiHash<QString, QString> m_addresses; ///< by identity
    QHash<QString, QString> m_titles;         ///< by identity
    QSet<QString> m_staying;                  ///< identities
};
