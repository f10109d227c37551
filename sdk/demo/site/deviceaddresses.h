// The index of devices by address.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace sdk::demo {

/// Not thread-safe.
class DeviceAddresses
{
public:
    void add(const SceneDevice &device);
    void remove(const SceneDevice &device);

    /// MACs of the devices with an IPv4 or IPv6 address, in any order. There are several in an address
    /// conflict.
    [[nodiscard]] QStringList macsAt(const QString &address) const { return m_macs.value(address); }

    /// Whether a device other than `device` has the address.
    [[nodiscard]] bool isTaken(const QString &address, const SceneDevice &device) const;

private:
    QHash<QString, QStringList> m_macs; ///< by address
};

} // namespace sdk::demo
