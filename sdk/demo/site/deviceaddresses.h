// The index of a site's devices by address.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace sdk::demo {

/// Not thread-safe: SiteState uses it with its lock held.
class DeviceAddresses
{
public:
    /// Adds the device with its IPv4 and its IPv6 address. Empty addresses are left out.
    void add(const SceneDevice &device);

    /// Removes the device. Its addresses must be those with which it was added.
    void remove(const SceneDevice &device);

    /// MACs of the devices whose IPv4 or IPv6 address is `address`, in any order; empty without such a
    /// device. There are several in an address conflict, and for "0.0.0.0". Texts are compared: an IPv6
    /// address must be in canonical form.
    [[nodiscard]] QStringList macsAt(const QString &address) const { return m_macs.value(address); }

    /// Whether a device with another MAC than `device` has the address.
    [[nodiscard]] bool isTaken(const QString &address, const SceneDevice &device) const;

private:
    QHash<QString, QStringList> m_macs; ///< by address
};

} // namespace sdk::demo
