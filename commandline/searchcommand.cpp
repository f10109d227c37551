#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QVariantList recordOf(const QJsonObject &row)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const qsizetype colon = ipport.lastIndexOf(u':');
    return {ipport.left(colon),
            ipport.mid(colon + 1).toInt(),
            row.value(DeviceRowKey::mac).toString(),
            row.value(DeviceRowKey::name).toString(),
            row.value(DeviceRowKey::type).toString(),
            row.value(DeviceRowKey::model).toString(),
            row.value(DeviceRowKey::vision).toString(),
            row.value(DeviceRowKey::state).toBool()};
}

} // namespace

int runSearch(CommandContext &context)
{
    if (const int exitCode = fillDeviceList(context); exitCode != AllDone)
        return exitCode;
    QString error;
    const DeviceChoice choice = chooseDevices(context, error);
    if (!error.isEmpty())
        return context.fail(UsageError, error);
    RecordTable table({u"address"_s, u"port"_s, u"mac"_s, u"name"_s, u"type"_s, u"model"_s, u"version"_s,
                       u"initialised"_s});
    for (const QJsonObject &row : choice.rows)
        table.add(recordOf(row));
    if (!context.arguments.has("devices"_L1)) {
        const QVariantList rows = context.factory.filterDataIPV6(dhFamily, RowFilter::containsText,
                                                                 context.arguments.value("filter"_L1));
        for (const QVariant &row : rows)
            table.add(recordOf(row.toJsonObject()));
    }
    context.print(table);
    for (const QString &name : choice.missing)
        context.terminal.writeError(u"%1 was not found"_s.arg(name));
    return choice.missing.isEmpty() ? AllDone : SomeFailed;
}

} // namespace commandline
