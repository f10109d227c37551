// The order in which the devices of a batch get their new addresses.
#pragma once

#include <QList>
#include <QString>

/// One change of an address.
struct AddressChange
{
    QString oldAddress;
    QString newAddress; ///< empty when it is not known
};

struct AddressOrder
{
    QList<qsizetype> order; ///< indices of the changes
    /// Indices of changes that cannot be ordered, since each device of them gets the address of another one.
    QList<qsizetype> circle;
};

/// A device that gets the address of another one of the batch comes after it, so that no device gets an
/// address that still responds. Otherwise the order is that of the list. Devices that share an address,
/// before or after, do not wait for each other.
[[nodiscard]] AddressOrder addressOrder(const QList<AddressChange> &changes);
