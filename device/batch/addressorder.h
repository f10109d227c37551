// The order of the address changes of a batch.
#pragma once

#include <QList>
#include <QString>

/// The change of one device's address. Addresses are texts without a port.
struct AddressChange
{
    QString oldAddress; ///< that the device has now
    QString newAddress; ///< empty if unknown (DHCP)
};

/// Result of addressOrder().
struct AddressOrder
{
    QList<qsizetype> order; ///< indexes of the changes that can be ordered, the first one first
    /// Indexes of the changes that cannot be ordered: a circle of devices that exchange addresses, and those
    /// that depend on it.
    QList<qsizetype> circle;
};

/// Orders the changes so that no device gets an address that another device of the batch still has. Otherwise
/// keeps the given order. Devices with the same new address do not depend on each other. Of devices with the
/// same old address, one that keeps it comes after those that leave it. Any thread.
[[nodiscard]] AddressOrder addressOrder(const QList<AddressChange> &changes);
