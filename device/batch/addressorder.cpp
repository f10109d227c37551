#include "device/batch/addressorder.h"

#include <QHash>

#include <set>
#include <utility>

AddressOrder addressOrder(const QList<AddressChange> &changes)
{
    QMultiHash<QString, qsizetype> owners; // changes by old address
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (changes.at(index).oldAddress != changes.at(index).newAddress)
            owners.insert(changes.at(index).oldAddress, index);
    }
    QList<int> waitsFor(changes.size(), 0);
    QList<QList<qsizetype>> followers(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
        const QString &wanted = changes.at(index).newAddress;
        if (wanted.isEmpty())
            continue;
        // Includes a device that keeps its address: others with that address leave it first.
        const QList<qsizetype> before = owners.values(wanted);
        for (const qsizetype owner : before) {
            followers[owner].append(index);
            ++waitsFor[index];
        }
    }

    AddressOrder result;
    std::set<qsizetype> ready; // ordered: the first change of the list is next
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (waitsFor.at(index) == 0)
            ready.insert(index);
    }
    while (!ready.empty()) {
        const qsizetype next = *ready.begin();
        ready.erase(ready.begin());
        result.order.append(next);
        for (const qsizetype follower : std::as_const(followers[next])) {
            if (--waitsFor[follower] == 0)
                ready.insert(follower);
        }
    }
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (waitsFor.at(index) > 0)
            result.circle.append(index);
    }
    return result;
}
