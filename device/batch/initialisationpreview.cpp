#include "device/batch/initialisationpreview.h"

#include "device/registry/upgradetools.h"
#include "device/store/devicerow.h"

#include <algorithm>

void InitialisationPreview::setTicked(const QVariantList &rows)
{
    QVariantList ordered = rows;
    std::stable_partition(ordered.begin(), ordered.end(), [](const QVariant &row) {
        return !row.toMap().value(DeviceRowKey::state).toBool();
    });
    setDevices(ordered);
}

QStringList InitialisationPreview::identities() const
{
    QStringList identities;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row) && hindranceOf(row).isEmpty())
            identities.append(identityOf(deviceAt(row)));
    }
    return identities;
}

BatchPreview::Judgement InitialisationPreview::judgementOf(int row) const
{
    const QString hindrance = hindranceOf(row);
    return hindrance.isEmpty() ? Judgement{.action = action()}
                               : Judgement{.kind = Skipped, .note = hindrance};
}

QString InitialisationPreview::hindranceOf(int row) const
{
    const QVariantMap device = deviceAt(row);
    if (device.value(DeviceRowKey::state).toBool())
        return tr("已初始化，不会执行");
    if (UpgradeTools::isRunning(device.value(DeviceRowKey::upgraderes, int(UpgradeTools::None)).toInt()))
        return tr("正在升级，不会执行");
    if (device.value(DeviceRowKey::mac).toString().isEmpty() && !identityOf(device).startsWith(uuidPrefix))
        return tr("MAC地址未知，不会执行");
    return {};
}
