#include "device/batch/internal/snapshotplan.h"

#include "device/registry/devicefactory.h"

#include <QCoreApplication>
#include <QHash>

BatchPlan snapshotPlan(CDeviceFactory &factory, BatchPlan plan, const QString &ipport,
                       const QStringList &channelNames, const QString &folder)
{
    const QList<DeviceStep> steps = factory.backEnd(plan.family)->snapshotSteps(folder);
    const BatchDevice device = batchDevice(factory, plan.family, ipport);
    QHash<QString, DeviceStep> stepOfChannel;
    for (qsizetype channel = 0; channel < steps.size(); ++channel) {
        BatchDevice entry = device;
        entry.name = QCoreApplication::translate("Batches", "%1 通道 %2").arg(ipport).arg(channel + 1);
        entry.title = channelNames.value(channel);
        stepOfChannel.insert(entry.name, steps.at(channel));
        plan.devices.append(entry);
    }
    plan.policy = {.maximumParallel = 1, .deadline = plan.policy.deadline};
    plan.stepOf = [stepOfChannel](const BatchDevice &channel) {
        return stepOfChannel.value(channel.name);
    };
    plan.accountOf = nullptr;
    plan.canBeRetried = false; // the snapshot dialog retries single channels itself
    plan.marksFailed = false;
    plan.changesDevices = false;
    return plan;
}
