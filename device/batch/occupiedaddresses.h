#pragma once

#include "device/batch/batchplan.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

#include <algorithm>
#include <optional>

/// The addresses that devices of a batch of address changes still have, so that no device gets the address of
/// another one. Addresses are texts without a port. Used by steps that run one after another; not
/// thread-safe.
class OccupiedAddresses
{
public:
    /// The device that still has an address.
    struct Holder
    {
        QString title;      ///< its title, or its identity if that is empty
        bool stays = false; ///< stay() was called: its change has failed, and a retry cannot succeed
    };

    /// Each device occupies the address of its row. It also occupies its address in plan.addressesBefore:
    /// after a failed change, its row may show an address that the device does not have.
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

    /// A device other than `identity` that still has `address`; nullopt if there is none or `address` is
    /// empty.
    [[nodiscard]] std::optional<Holder> holderOf(const QString &address, const QString &identity) const
    {
        const auto [begin, end] = m_devices.equal_range(address);
        const auto other =
            std::find_if(begin, end, [&](const QString &device) { return device != identity; });
        if (address.isEmpty() || other == end)
            return std::nullopt;
        return Holder{.title = m_titles.value(*other), .stays = m_staying.contains(*other)};
    }

    /// The change of the device has succeeded: it occupies no address any more.
    void leave(const QString &identity)
    {
        for (const QString &address : m_addresses.values(identity))
            m_devices.remove(address, identity);
    }

    /// The change of the device has failed, and a retry cannot succeed: it keeps its addresses.
    void stay(const QString &identity) { m_staying.insert(identity); }

private:
    QMultiHash<QString, QString> m_devices;   ///< identities by address
    QMultiHash<QString, QString> m_addresses; ///< addresses by identity
    QHash<QString, QString> m_titles;         ///< by identity
    QSet<QString> m_staying;                  ///< identities
};
