#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/devicesession.h"
#include "commandline/preview.h"
#include "commandline/settingsubject.h"
#include "commandline/systemsettings.h"
#include "device/batch/nameplan.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// Writes values in a session, or only checks them. Nothing is written if a value has a fault.
StepOutcome writeSession(const CommandContext &context, const SessionSubject &subject, int channel,
                         const QList<Assignment> &assignments, const QJsonObject &row)
{
    QStringList faults;
    bool hasChannel = true;
    const SessionResult result =
        workInSession(context, row, [&](SessionOperations &device, const StepControl &) {
            hasChannel = subject.load(device, channel);
            if (!hasChannel || device.isDeviceAway())
                return QVariant();
            for (const Assignment &assignment : assignments) {
                const QString fault = subject.faultOf(device, assignment);
                if (!fault.isEmpty())
                    faults.append(fault);
            }
            if (faults.isEmpty() && !context.isDryRun())
                subject.write(device, assignments);
            return QVariant();
        });
    if (!hasChannel)
        return noChannel(channel);
    if (result.outcome.result == resultCode(LoginResult::Success) && !faults.isEmpty())
        return {.result = resultCode(LoginResult::InvalidValue), .text = faults.join(u"; "_s)};
    return result.outcome;
}

int setInSessions(CommandContext &context, const SessionSubject &subject, int channel,
                  const QList<Assignment> &assignments, const DeviceChoice &choice)
{
    ResultTable results;
    DeviceSequence(context).run(
        choice.rows,
        [&](const QJsonObject &row) { return writeSession(context, subject, channel, assignments, row); },
        [&](const QJsonObject &row, const StepOutcome &outcome) {
            results.add(batchDevice(context.factory, dhFamily, rowName(row)), outcome);
        });
    results.addMissing(choice.missing);
    return results.print(context);
}

int planSystem(const CommandContext &context, const SystemPlan &plan, const NamePlan &names,
               const DeviceChoice &choice)
{
    RecordTable table({u"device"_s, u"mac"_s, u"setting"_s, u"value"_s});
    for (const QJsonObject &row : choice.rows) {
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        const QString mac = row.value(DeviceRowKey::mac).toString();
        const qsizetype index = names.namedIdentities().indexOf(ipport);
        if (index >= 0)
            table.add({ipport, mac, u"name"_s, names.names().value(index)});
        for (const SystemPlan::Step &step : plan.steps) {
            QStringList values;
            for (auto value = step.data.cbegin(); value != step.data.cend(); ++value)
                values.append(value.key() + u'=' + value.value().toString());
            table.add({ipport, mac, step.command, values.join(u' ')});
        }
    }
    context.print(table);
    return choice.missing.isEmpty() ? AllDone : SomeFailed;
}

/// The batch of one setting.
struct SystemWork
{
    QString setting;
    std::function<Batch *()> start; ///< returns null if the batch does not start
};

/// Runs the batches one after another, until one is stopped or does not start. The results up to then are
/// printed.
int setInBatches(CommandContext &context, const QList<SystemWork> &works, const DeviceChoice &choice)
{
    ResultTable results({u"setting"_s});
    for (const SystemWork &work : works) {
        const int exitCode = runBatch(context, work.start, results,
                                      [&work](const BatchDevice &) { return QVariantList{work.setting}; });
        if (exitCode == AllDone && !results.isStopped())
            continue;
        if (exitCode != AllDone && &work == &works.constFirst())
            return exitCode;
        if (&work != &works.constLast())
            context.terminal.writeError(u"The remaining settings were not changed."_s);
        results.addMissing(choice.missing);
        static_cast<void>(results.print(context));
        return SomeFailed;
    }
    results.addMissing(choice.missing);
    return results.print(context);
}

int setSystem(CommandContext &context, const SystemPlan &plan, const DeviceChoice &choice)
{
    NamePlan names;
    names.setDeviceFactory(&context.factory);
    if (!plan.name.isEmpty()) {
        names.setPattern(plan.name);
        names.takeCameras(choice.addresses());
        if (!names.fault().isEmpty())
            return context.fail(UsageError, names.fault());
    }
    if (context.isDryRun())
        return planSystem(context, plan, names, choice);
    QList<SystemWork> works;
    if (!plan.name.isEmpty())
        works.append({u"name"_s, [&] {
                          return context.batches.nameCameras(dhFamily, u"set"_s, names.namedIdentities(),
                                                             names.names());
                      }});
    for (const SystemPlan::Step &step : plan.steps)
        works.append({step.command, [&] {
                          return context.batches.configureSystem(dhFamily, step.command, u"set"_s, step.data,
                                                                 choice.addresses());
                      }});
    return setInBatches(context, works, choice);
}

} // namespace

int runSet(CommandContext &context)
{
    const std::optional<SettingSubject> subject = subjectNamed(context.arguments.operands.constFirst());
    if (!subject)
        return context.fail(UsageError, u"set needs encode, image or system"_s);
    QList<Assignment> assignments;
    for (const QString &operand : context.arguments.operands.mid(1)) {
        const std::optional<Assignment> assignment = assignmentFrom(operand);
        if (!assignment)
            return context.fail(UsageError,
                                u"\"%1\" is not of the form SETTING=VALUE"_s.arg(operand.left(100)));
        if (!subject->knows(assignment->name))
            return context.fail(UsageError,
                                u"there is no setting %1 that can be set"_s.arg(assignment->name));
        assignments.append(*assignment);
    }
    const std::optional<int> channel = channelOf(context.arguments);
    if (!channel)
        return context.fail(UsageError, u"--channel is a number from 1"_s);
    const SystemPlan plan = subject->session ? SystemPlan() : systemPlan(assignments);
    if (!plan.error.isEmpty())
        return context.fail(UsageError, plan.error);
    if (const int exitCode = setAccount(context); exitCode != AllDone)
        return exitCode;
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    return subject->session ? setInSessions(context, *subject->session, *channel, assignments, choice)
                            : setSystem(context, plan, choice);
}

} // namespace commandline
