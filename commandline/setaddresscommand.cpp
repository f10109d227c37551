#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/preview.h"
#include "commandline/textfile.h"
#include "device/batch/addressplan.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"
#include "device/store/ipv4address.h"

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// The new addresses of devices by their names in the file of "--map".
struct AddressMap
{
    QStringList devices;
    QStringList addresses; ///< parallel to the devices
    QString error;         ///< in English; empty on success
};

AddressMap readMap(const QString &path)
{
    AddressMap map;
    const TextLines lines = readTextLines(path);
    map.error = lines.error;
    for (const TextLine &line : lines.lines) {
        const QString device = line.text.section(u',', 0, 0).trimmed();
        const QString address = line.text.section(u',', 1).trimmed();
        if (device.isEmpty() || !ipv4Number(address)) {
            map.error =
                u"%1, line %2: a device and its new address are needed, separated by a comma"_s.arg(path).arg(
                    line.number);
            return map;
        }
        if (map.devices.contains(device)) {
            map.error = u"%1, line %2: %3 is listed twice"_s.arg(path).arg(line.number).arg(device);
            return map;
        }
        map.devices.append(device);
        map.addresses.append(ipv4Text(*ipv4Number(address)));
    }
    if (map.error.isEmpty() && map.devices.isEmpty())
        map.error = u"%1 lists no device"_s.arg(path);
    return map;
}

/// The first address of the /24 block.
QString usualGateway(const QString &address)
{
    return ipv4Text((ipv4Number(address).value_or(0) & 0xFFFFFF00U) | 1U);
}

struct AddressTarget
{
    QString start;
    QString mask;
    QString gateway;
    bool dhcp = false;
};

/// Empty, or why an address is invalid.
QString targetFault(const AddressTarget &target)
{
    if (target.dhcp)
        return {};
    if (!ipv4Number(target.start))
        return u"--start is no IPv4 address"_s;
    const std::optional<std::uint32_t> mask = ipv4Number(target.mask);
    if (!mask || !isSubnetMask(*mask))
        return u"--mask is no subnet mask"_s;
    return ipv4Number(target.gateway) ? QString() : u"--gateway is no IPv4 address"_s;
}

/// The preview of a map: addresses that other devices keep or get as well are warnings.
class MappedPlan : public BatchPreview
{
public:
    void take(CDeviceFactory &factory, const DeviceChoice &choice, const QStringList &addresses)
    {
        setDeviceFactory(&factory);
        QVariantList entries;
        for (qsizetype index = 0; index < choice.rows.size(); ++index) {
            const QJsonObject &row = choice.rows.at(index);
            entries.append(QVariantMap{{DeviceRowKey::name, rowName(row)},
                                       {DeviceRowKey::ipport, row.value(DeviceRowKey::ipport).toString()},
                                       {RowKey::action, addresses.value(index)},
                                       {RowKey::newAddress, addresses.value(index)}});
        }
        setEntries(entries);
    }
};

/// Planned changes need no account.
int setAccountOfChanges(const CommandContext &context)
{
    return context.isDryRun() ? AllDone : setAccount(context);
}

int changeChosen(CommandContext &context, const DeviceChoice &choice, const BatchPreview &preview,
                 const QStringList &addresses, const AddressTarget &target)
{
    if (context.isDryRun())
        return printPreview(context, preview, choice.missing);
    const QStringList warnings = warningsOf(preview);
    for (const QString &warning : warnings)
        context.terminal.writeError(terminalText(warning));
    if (!warnings.isEmpty() && !context.arguments.has("force"_L1))
        return context.fail(NothingDone,
                            u"Nothing was changed. --force changes the addresses nevertheless."_s);
    ResultTable results;
    const int exitCode = runBatch(
        context,
        [&] {
            return context.batches.changeAddresses(dhFamily, u"set-address"_s, choice.identities(), addresses,
                                                   target.mask, target.gateway, target.dhcp);
        },
        results);
    if (exitCode != AllDone)
        return exitCode;
    results.addMissing(choice.missing);
    return results.print(context);
}

int changeMapped(CommandContext &context, AddressTarget target)
{
    if (context.arguments.has("devices"_L1))
        return context.fail(UsageError, u"--map names the devices itself: --devices is not accepted"_s);
    const AddressMap map = readMap(context.arguments.value("map"_L1));
    if (!map.error.isEmpty())
        return context.fail(UsageError, map.error);
    target.start = map.addresses.constFirst();
    target.gateway = context.arguments.value("gateway"_L1, usualGateway(target.start));
    if (const QString fault = targetFault(target); !fault.isEmpty())
        return context.fail(UsageError, fault);
    if (const int exitCode = setAccountOfChanges(context); exitCode != AllDone)
        return exitCode;
    if (const int exitCode = fillDeviceList(context); exitCode != AllDone)
        return exitCode;
    DeviceChoice choice;
    QStringList addresses;
    for (qsizetype index = 0; index < map.devices.size(); ++index) {
        const DeviceChoice found = devicesNamed(context, {map.devices.at(index)});
        choice.missing += found.missing;
        // Several devices at one address are not distinguished by it.
        if (found.rows.size() > 1)
            return context.fail(NothingDone,
                                u"%1 names several devices: use their MACs"_s.arg(map.devices.at(index)));
        for (const QJsonObject &row : found.rows) {
            if (choice.rows.contains(row))
                return context.fail(UsageError, u"%1 is listed twice"_s.arg(map.devices.at(index)));
            choice.rows.append(row);
            addresses.append(map.addresses.at(index));
        }
    }
    if (choice.rows.isEmpty())
        return context.fail(NothingDone, u"None of the devices was found."_s);
    MappedPlan plan;
    plan.take(context.factory, choice, addresses);
    return changeChosen(context, choice, plan, addresses, target);
}

} // namespace

int runSetAddress(CommandContext &context)
{
    const Arguments &arguments = context.arguments;
    const int ways = (arguments.has("start"_L1) ? 1 : 0) + (arguments.has("map"_L1) ? 1 : 0) +
                     (arguments.has("dhcp"_L1) ? 1 : 0);
    if (ways != 1)
        return context.fail(UsageError, u"set-address needs either --start, --map or --dhcp"_s);
    AddressTarget target = {.start = arguments.value("start"_L1),
                            .mask = arguments.value("mask"_L1, u"255.255.255.0"_s),
                            .gateway =
                                arguments.value("gateway"_L1, usualGateway(arguments.value("start"_L1))),
                            .dhcp = arguments.has("dhcp"_L1)};
    if (arguments.has("map"_L1))
        return changeMapped(context, target);
    if (const QString fault = targetFault(target); !fault.isEmpty())
        return context.fail(UsageError, fault);
    if (const int exitCode = setAccountOfChanges(context); exitCode != AllDone)
        return exitCode;
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    AddressPlan plan;
    plan.setDeviceFactory(&context.factory);
    plan.setStartAddress(target.start);
    plan.setMask(target.mask);
    plan.setGateway(target.gateway);
    plan.setDhcp(target.dhcp);
    plan.setDevices(previewRows(choice));
    return changeChosen(context, choice, plan, plan.addresses(), target);
}

} // namespace commandline
