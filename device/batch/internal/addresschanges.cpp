#include "device/batch/internal/addresschanges.h"

#include "device/batch/addressorder.h"
#include "device/batch/occupiedaddresses.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

/// Whether the address of a device may have changed although the change has this result.
bool mayBeChanged(int result)
{
    return result == BatchReport::Succeeded || result == resultCode(LoginResult::NetworkFailure) ||
           result == resultCode(LoginResult::Unconfirmed) || result == resultCode(LoginResult::AddressInUse);
}

/// The current row of a device of an ended batch; without a row, its state after the batch.
BatchDevice deviceNow(CDeviceFactory &factory, const BatchPlan &plan, const Batch::Entry &entry)
{
    if (!factory.backEnd(plan.family)->deviceRow(entry.device.identity).isEmpty())
        return batchDevice(factory, plan.family, entry.device.identity);
    BatchDevice device = entry.device;
    const QString given = entry.outcome.result == BatchReport::Succeeded ? entry.outcome.text : QString();
    if (!given.isEmpty()) // after a change to DHCP the address is unknown: ":port"
        device.ipport = (given == QLatin1String("DHCP") ? QString() : given) + QLatin1Char(':') +
                        device.ipport.section(QLatin1Char(':'), 1);
    return device;
}

} // namespace

AddressChanges::Planned AddressChanges::change(BatchPlan plan, const QStringList &macs,
                                               const QStringList &addresses, const QString &mask,
                                               const QString &gateway, bool dhcp) const
{
    plan.devices = batchDevices(m_factory, plan.family, macs);
    QHash<QString, QString> addressOf; // `macs` may contain a device twice
    for (qsizetype index = 0; index < macs.size(); ++index)
        addressOf.insert(macs.at(index), addresses.value(index));
    QHash<QString, AddressSettings> targets;
    for (const BatchDevice &device : std::as_const(plan.devices)) {
        if (dhcp)
            targets.insert(device.identity, {.address = {}, .mask = {}, .gateway = {}, .dhcp = true});
        else
            targets.insert(
                device.identity,
                {.address = addressOf.value(device.name), .mask = mask, .gateway = gateway, .dhcp = false});
    }
    return planChanges(std::move(plan), targets);
}

QVariantList AddressChanges::entriesToPutBack(const Batch &batch) const
{
    QVariantList entries;
    for (const Batch::Entry &entry : batch.entries()) {
        if (!mayBeChanged(entry.outcome.result))
            continue;
        const QString &identity = entry.device.identity;
        const AddressSettings before = batch.plan().addressesBefore.value(identity);
        const BatchDevice now = deviceNow(m_factory, batch.plan(), entry);
        QVariantMap values = {{DeviceRowKey::name, identity},
                              {DeviceRowKey::ipport, now.ipport},
                              {RowKey::action, before.dhcp ? QStringLiteral("DHCP") : before.address},
                              {RowKey::newAddress, before.dhcp ? QString() : before.address}};
        if (m_factory.backEnd(batch.plan().family)->deviceRow(identity).isEmpty()) {
            values.insert(RowKey::title, now.title);
            values.insert(DeviceRowKey::mac, macOf(now));
        }
        entries.append(values);
    }
    return entries;
}

AddressChanges::Planned AddressChanges::putBack(BatchPlan plan, const Batch &batch,
                                                const QStringList &identities) const
{
    const QSet<QString> chosen(identities.cbegin(), identities.cend());
    for (const Batch::Entry &entry : batch.entries()) {
        if (chosen.contains(entry.device.identity))
            plan.devices.append(deviceNow(m_factory, batch.plan(), entry));
    }
    Planned planned = planChanges(std::move(plan), batch.plan().addressesBefore);
    if (planned.plan.devices.isEmpty())
        return planned;
    QStringList names;
    for (const BatchDevice &device : std::as_const(planned.plan.devices))
        names.append(device.name);
    planned.plan.preparation = m_factory.backEnd(planned.plan.family)->locationStep(names);
    return planned;
}

std::optional<AddressSettings> AddressChanges::settingsBeforeFailure(const QString &identity) const
{
    const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(identity);
    if (!row.value(DeviceRowKey::unconfirmed).toBool()) // the device was found again since
        return std::nullopt;
    const auto last = std::find_if(m_earlier.crbegin(), m_earlier.crend(), [&identity](const Batch *batch) {
        return batch->plan().addressesBefore.contains(identity);
    });
    return last == m_earlier.crend() ? std::nullopt
                                     : std::optional((*last)->plan().addressesBefore.value(identity));
}

AddressChanges::Planned AddressChanges::planChanges(BatchPlan plan,
                                                    const QHash<QString, AddressSettings> &targets) const
{
    QList<AddressChange> changes;
    for (const BatchDevice &device : std::as_const(plan.devices)) {
        const QVariantMap detail = m_factory.getDeviceDetail(plan.family, device.name);
        // Of a device without a row only the address is known; the other values are those of the target.
        const AddressSettings target = targets.value(device.identity);
        const AddressSettings shown = {.address = device.ipport.section(QLatin1Char(':'), 0, 0),
                                       .mask = detail.value(DeviceDetailKey::submask, target.mask).toString(),
                                       .gateway =
                                           detail.value(DeviceDetailKey::gateway, target.gateway).toString(),
                                       .dhcp = detail.value(DeviceDetailKey::dhcp).toBool()};
        const AddressSettings before = settingsBeforeFailure(device.identity).value_or(shown);
        plan.addressesBefore.insert(device.identity, before);
        changes.append({.oldAddress = before.address, .newAddress = targets.value(device.identity).address});
    }
    const AddressOrder order = addressOrder(changes);
    if (!order.circle.isEmpty()) {
        const AddressChange &first = changes.at(order.circle.constFirst());
        return {.plan = {},
                .refusal = QCoreApplication::translate(
                               "Batches",
                               "设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。")
                               .arg(first.oldAddress, first.newAddress)};
    }
    QList<BatchDevice> ordered;
    for (const qsizetype index : order.order)
        ordered.append(plan.devices.at(index));
    plan.devices = ordered;
    plan.policy.maximumParallel = 1;
    // The steps go by MAC, but two rows with one address may be one device, which may refuse the account.
    plan.isByAddress = true;
    const auto occupied = std::make_shared<OccupiedAddresses>(plan);
    plan.stepOf = [&factory = m_factory, family = plan.family, targets,
                   occupied](const BatchDevice &device) -> DeviceStep {
        const AddressSettings target = targets.value(device.identity);
        const DeviceStep step =
            target.dhcp ? factory.backEnd(family)->addressStep(device.name, {}, {}, {}, true)
                        : factory.backEnd(family)->addressStep(device.name, target.address, target.mask,
                                                               target.gateway, false);
        return [=](const StepControl &control) {
            if (const auto holder = occupied->holderOf(target.address, device.identity)) {
                if (holder->stays)
                    occupied->stay(device.identity);
                return StepOutcome{.result = holder->stays ? resultCode(LoginResult::AddressInUse)
                                                           : BatchReport::NotDone,
                                   .text = QCoreApplication::translate("Batches", "地址 %1 仍由设备 %2 使用")
                                               .arg(target.address, holder->title)};
            }
            StepOutcome outcome = step(control);
            // After Unconfirmed, a repeated request succeeds if the device can be reached at its new address.
            outcome.hasNoResponse =
                outcome.hasNoResponse || outcome.result == resultCode(LoginResult::Unconfirmed);
            if (outcome.result == BatchReport::Succeeded) {
                occupied->leave(device.identity);
                outcome.text = target.dhcp ? QStringLiteral("DHCP") : target.address; // for the results file
            } else if (!maySucceedLater(outcome)) {
                occupied->stay(device.identity);
            }
            return outcome;
        };
    };
    plan.work = QStringLiteral("changeAddress");
    plan.changesRows = true;
    plan.notesResults = true;
    return {.plan = std::move(plan), .refusal = {}};
}
