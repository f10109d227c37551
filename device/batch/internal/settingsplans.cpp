#include "device/batch/internal/settingsplans.h"

#include "device/models/batchreport.h"
#include "device/registry/devicefactory.h"
#include "device/registry/mapkeys.h"
#include "device/registry/systemkeys.h"
#include "device/store/devicerow.h"

namespace {

/// Id of the work of a system command. Both ways to set the clock are one work, as are both steps of a
/// password change.
QString workOf(const QString &command)
{
    if (command == SystemCommand::setTimeByPC || command == SystemCommand::setTimeByManual)
        return QStringLiteral("setTime");
    return command == SystemCommand::loginCheck ? QString(SystemCommand::modifyPassword) : command;
}

/// The values of a system command for the record of changes.
QString valuesOf(const QString &command, const QVariantMap &data)
{
    if (command == SystemCommand::setTimeByManual)
        return data.value(SystemDataKey::time).toString();
    if (command == SystemCommand::ntpConfig && data.value(SystemDataKey::ntpSet).toBool())
        return data.value(SystemDataKey::ntpServer).toString();
    return {};
}

/// Updates the row of a camera. A recorder's name is separate from the name of its channel 1.
void noteCameraName(CDeviceFactory &factory, const QString &family, const BatchDevice &device,
                    const QString &name)
{
    const QString type = factory.getDeviceInfo(family, device.ipport).value(DeviceRowKey::type).toString();
    if (!isRecorderType(type))
        factory.updataDeviceInfo(family, DeviceRowKey::name, name, device.identity, device.ipport);
}

} // namespace

BatchPlan systemPlan(CDeviceFactory &factory, BatchPlan plan, const QString &command, const QVariantMap &data,
                     const QStringList &ipports)
{
    QVariantMap values = data;
    if (command == SystemCommand::setTimeByPC)
        values.insert(SystemDataKey::timeOfRequest, true);
    plan.work = workOf(command);
    plan.devices = batchDevices(factory, plan.family, ipports);
    plan.stepOf = [&factory, family = plan.family, command, values](const BatchDevice &device) {
        return factory.backEnd(family)->systemStep(command, values, device.ipport);
    };
    // A password change uses the old password that the user enters, not the account of the row.
    if (plan.work == SystemCommand::modifyPassword)
        plan.accountOf = nullptr;
    plan.isByAddress = true;
    plan.changesRows = command == SystemCommand::resetSystem;
    plan.changesDevices = command != SystemCommand::readTime && command != SystemCommand::loginCheck &&
                          command != SystemCommand::cancelLogin;
    plan.values = valuesOf(command, values);
    return plan;
}

BatchPlan cameraNamePlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &ipports,
                         const QStringList &names)
{
    QHash<QString, QString> nameAt;
    for (qsizetype index = 0; index < ipports.size(); ++index)
        nameAt.insert(ipports.at(index), names.value(index));
    plan.work = QStringLiteral("channelName");
    plan.devices = batchDevices(factory, plan.family, ipports);
    plan.stepOf = [&factory, family = plan.family, nameAt](const BatchDevice &device) -> DeviceStep {
        const QString name = nameAt.value(device.ipport);
        const DeviceStep step = factory.backEnd(family)->systemStep(
            SystemCommand::channelName, {{SystemDataKey::name, name}}, device.ipport);
        return [step, name](const StepControl &control) {
            StepOutcome outcome = step(control);
            if (outcome.result == BatchReport::Succeeded)
                outcome.text = name; // for the results file
            return outcome;
        };
    };
    plan.takeOutcomes = [&factory, family = plan.family, nameAt](const QList<BatchOutcome> &outcomes) {
        for (const auto &[device, outcome] : outcomes) {
            if (outcome.result == BatchReport::Succeeded)
                noteCameraName(factory, family, device, nameAt.value(device.ipport));
        }
    };
    plan.isByAddress = true;
    return plan;
}

BatchPlan initialisationPlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &macs,
                             const QString &account, const QString &password)
{
    plan.devices = batchDevices(factory, plan.family, macs);
    plan.policy = {.maximumParallel = 1, .deadline = plan.policy.deadline};
    plan.stepOf = [&factory, family = plan.family, account, password](const BatchDevice &device) {
        return factory.backEnd(family)->initialisationStep(device.name, account, password);
    };
    plan.accountOf = nullptr;
    plan.changesRows = true;
    plan.notesResults = true;
    plan.values = account;
    return plan;
}

BatchPlan encodeCopyPlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &ipports)
{
    plan.devices = batchDevices(factory, plan.family, ipports);
    plan.stepOf = [copyTo = factory.backEnd(plan.family)->encodeCopy()](const BatchDevice &device) {
        return copyTo(device.ipport);
    };
    plan.isByAddress = true;
    return plan;
}
