#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/devicesession.h"
#include "commandline/settings.h"
#include "commandline/settingsubject.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/registry/systemkeys.h"
#include "device/store/devicerow.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// The settings of one device.
struct DeviceSettings
{
    QJsonObject row;
    StepOutcome outcome;
    QList<SettingValue> values;
};

StepOutcome readSession(const CommandContext &context, const SessionSubject &subject, int channel,
                        DeviceSettings &device)
{
    bool hasChannel = true;
    const SessionResult result =
        workInSession(context, device.row, [&](SessionOperations &operations, const StepControl &) {
            hasChannel = subject.load(operations, channel);
            if (hasChannel && !operations.isDeviceAway())
                device.values = subject.read(operations);
            return QVariant();
        });
    return hasChannel ? result.outcome : noChannel(channel);
}

/// The name of a property of the device for the user.
QString propertyName(const QString &key)
{
    if (key == DeviceRowKey::vision)
        return u"version"_s;
    return key == DeviceDetailKey::submask ? u"mask"_s : key;
}

/// Name, time and the properties that a login reports.
StepOutcome readSystem(const CommandContext &context, DeviceSettings &device)
{
    QVariant name;
    const SessionResult session =
        workInSession(context, device.row, [&name](SessionOperations &operations, const StepControl &) {
            name = operations.getDeviceChannelData(SessionKey::channelNames, 1).value(0);
            return QVariant();
        });
    if (session.outcome.result != resultCode(LoginResult::Success))
        return session.outcome;
    if (name.isValid() && !name.isNull())
        device.values.append({.name = u"name"_s, .value = name});
    const QString ipport = device.row.value(DeviceRowKey::ipport).toString();
    const StepOutcome time =
        context.factory.backEnd(dhFamily)->systemStep(SystemCommand::readTime, {}, ipport)(StepControl());
    if (time.result == resultCode(LoginResult::Success))
        device.values.append({.name = u"time"_s, .value = time.text});
    const QVariantMap detail = context.factory.readDeviceDetail(dhFamily, ipport);
    for (auto entry = detail.cbegin(); entry != detail.cend(); ++entry) {
        if (entry.key() != DeviceDetailKey::loginResult && !entry.value().toString().isEmpty())
            device.values.append({.name = propertyName(entry.key()), .value = entry.value()});
    }
    return time.result == resultCode(LoginResult::Success) ? session.outcome : time;
}

/// Removes the settings that are not wanted. Returns a failure if a wanted one is missing.
StepOutcome selectWanted(const QStringList &wanted, QList<SettingValue> &values)
{
    if (wanted.isEmpty())
        return {};
    values.removeIf([&wanted](const SettingValue &setting) { return !wanted.contains(setting.name); });
    for (const QString &name : wanted) {
        const bool isRead = std::any_of(values.cbegin(), values.cend(), [&name](const SettingValue &setting) {
            return setting.name == name;
        });
        if (!isRead)
            return {.result = resultCode(LoginResult::NotSupported),
                    .text = u"the device does not report %1"_s.arg(name)};
    }
    return {};
}

QByteArray settingsJson(const QList<DeviceSettings> &devices)
{
    QJsonArray array;
    for (const DeviceSettings &device : devices) {
        QJsonObject settings;
        for (const SettingValue &setting : device.values)
            settings.insert(setting.name, QJsonValue::fromVariant(setting.value));
        array.append(QJsonObject{{u"device"_s, device.row.value(DeviceRowKey::ipport)},
                                 {u"mac"_s, device.row.value(DeviceRowKey::mac)},
                                 {u"result"_s, outcomeWord(device.outcome.result)},
                                 {u"code"_s, device.outcome.result},
                                 {u"settings"_s, settings}});
    }
    return QJsonDocument(array).toJson();
}

void printSettings(const CommandContext &context, const QList<DeviceSettings> &devices)
{
    if (context.format == RecordFormat::Json) {
        context.terminal.writeResult(settingsJson(devices));
        return;
    }
    RecordTable table({u"device"_s, u"mac"_s, u"setting"_s, u"value"_s});
    for (const DeviceSettings &device : devices) {
        for (const SettingValue &setting : device.values)
            table.add({device.row.value(DeviceRowKey::ipport).toString(),
                       device.row.value(DeviceRowKey::mac).toString(), setting.name, setting.value});
    }
    context.print(table);
}

} // namespace

int runGet(CommandContext &context)
{
    const std::optional<SettingSubject> subject = subjectNamed(context.arguments.operands.constFirst());
    if (!subject)
        return context.fail(UsageError, u"get needs encode, image or system"_s);
    const QStringList wanted = context.arguments.operands.mid(1);
    for (const QString &name : wanted) {
        if (subject->session && !subject->knows(name))
            return context.fail(UsageError, u"there is no setting %1"_s.arg(name));
    }
    const std::optional<int> channel = channelOf(context.arguments);
    if (!channel)
        return context.fail(UsageError, u"--channel is a number from 1"_s);
    if (const int exitCode = setAccount(context); exitCode != AllDone)
        return exitCode;
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    QList<DeviceSettings> devices;
    bool hasFailures = !choice.missing.isEmpty();
    DeviceSettings device;
    DeviceSequence(context).run(
        choice.rows,
        [&](const QJsonObject &row) {
            device = {.row = row, .outcome = {}, .values = {}};
            const StepOutcome outcome = subject->session
                                            ? readSession(context, *subject->session, *channel, device)
                                            : readSystem(context, device);
            return outcome.result == resultCode(LoginResult::Success) ? selectWanted(wanted, device.values)
                                                                      : outcome;
        },
        [&](const QJsonObject &row, const StepOutcome &outcome) {
            device.row = row;
            device.outcome = outcome;
            hasFailures = hasFailures || outcome.result != resultCode(LoginResult::Success);
            devices.append(device);
            device = {};
        });
    printSettings(context, devices);
    for (const QString &name : std::as_const(choice.missing))
        context.terminal.writeError(u"%1 was not found"_s.arg(name));
    return hasFailures ? SomeFailed : AllDone;
}

} // namespace commandline
