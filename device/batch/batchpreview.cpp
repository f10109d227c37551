#include "device/batch/batchpreview.h"

#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

namespace {

/// The values of a device that a row keeps.
QVariantMap shownOf(const QVariantMap &device, const QString &identity)
{
    QVariantMap shown = {{RowKey::identity, identity},
                         {RowKey::title, deviceTitle(device.value(DeviceRowKey::name).toString(),
                                                     device.value(DeviceRowKey::model).toString())}};
    for (const QLatin1StringView key :
         {DeviceRowKey::mac, DeviceRowKey::type, DeviceRowKey::model, DeviceRowKey::ipport,
          DeviceRowKey::vision, DeviceRowKey::state, DeviceRowKey::upgraderes, DeviceRowKey::lost}) {
        if (device.contains(key))
            shown.insert(key, device.value(key));
    }
    return shown;
}

} // namespace

BatchPreview::BatchPreview(QObject *parent) : DeviceSelection(parent)
{
    connect(this, &DeviceSelection::checkedCountChanged, this, &BatchPreview::rejudge);
}

CDeviceFactory *BatchPreview::deviceFactory() const
{
    return m_deviceFactory;
}

void BatchPreview::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    m_deviceFactory = deviceFactory;
    Q_EMIT factoryChanged();
}

void BatchPreview::setAction(const QString &action)
{
    if (std::exchange(m_action, action) != action)
        rejudge();
}

void BatchPreview::setDevices(const QVariantList &rows)
{
    readList();
    QVariantList devices;
    for (const QVariant &value : rows) {
        const QVariantMap device = value.toMap();
        devices.append(shownOf(device, identityOf(device)));
    }
    setRows(devices);
}

void BatchPreview::setAddresses(const QStringList &ipports)
{
    const QHash<QString, QVariantMap> listed = devicesByName();
    QVariantList rows;
    for (const QString &ipport : ipports) {
        QVariantMap device = listed.value(ipport);
        device.insert(DeviceRowKey::ipport, ipport);
        rows.append(device);
    }
    setDevices(rows);
}

void BatchPreview::setEntries(const QVariantList &entries)
{
    readList();
    const QHash<QString, QVariantMap> listed = devicesByName();
    QVariantList rows;
    rows.reserve(entries.size());
    for (const QVariant &value : entries) {
        const QVariantMap entry = value.toMap();
        const QString name = entry.value(DeviceRowKey::name).toString();
        const QVariant ipport = entry.value(DeviceRowKey::ipport);
        QVariantMap row = shownOf(listed.value(listed.contains(name) ? name : ipport.toString()), name);
        if (row.value(DeviceRowKey::mac).toString().isEmpty() && entry.contains(DeviceRowKey::mac))
            row.insert(DeviceRowKey::mac, entry.value(DeviceRowKey::mac)); // device without a row
        QStringList titles = {entry.value(RowKey::title).toString(), row.value(RowKey::title).toString()};
        titles.removeAll(QString());
        row.insert(RowKey::title, titles.join(QStringLiteral(" · ")));
        row.insert(DeviceRowKey::ipport, ipport);
        row.insert(RowKey::action, entry.value(RowKey::action));
        row.insert(RowKey::hindrance, entry.value(RowKey::hindrance));
        row.insert(RowKey::newAddress, entry.value(RowKey::newAddress));
        rows.append(row);
    }
    setRows(rows);
}

QHash<QString, QVariantMap> BatchPreview::devicesByName() const
{
    QHash<QString, QVariantMap> devices;
    const QVariantList all = listedRows();
    devices.reserve(2 * all.size());
    for (const QVariant &value : all) {
        const QJsonObject row = value.toJsonObject();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        QVariantMap device = row.toVariantMap();
        device.insert(RowKey::identity, rowName(row));
        devices.insert(rowName(row), device);
        const auto known = devices.constFind(ipport);
        if (known == devices.cend() || known->value(DeviceRowKey::lost).toBool()) // same choice as operations
            devices.insert(ipport, device);
    }
    return devices;
}

QVariantList BatchPreview::listedRows() const
{
    return m_deviceFactory ? m_deviceFactory->filterData(dhFamily, RowFilter::all) : QVariantList();
}

void BatchPreview::readList()
{
    m_listed.clear();
    m_devicesAt.clear();
    m_identitiesAt.clear();
    const QVariantList all = listedRows();
    m_listed.reserve(all.size());
    for (const QVariant &value : all) {
        const QJsonObject row = value.toJsonObject();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        const QString description = QString(row.value(DeviceRowKey::model).toString() + QLatin1Char(' ') +
                                            row.value(DeviceRowKey::mac).toString())
                                        .trimmed();
        m_listed.append({.identity = rowName(row),
                         .ipport = ipport,
                         .description = description.isEmpty() ? ipport : description});
        // The address of an offline device may be used by another device now.
        m_devicesAt[ipport] += row.value(DeviceRowKey::lost).toBool() ? 0 : 1;
        m_identitiesAt.insert(ipport.left(ipport.lastIndexOf(QLatin1Char(':'))), rowName(row));
    }
}

QStringList BatchPreview::addressesOf(bool checked) const
{
    QStringList ipports;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row) == checked)
            ipports.append(addressAndPortOf(row));
    }
    return ipports;
}

QString BatchPreview::addressAndPortOf(int row) const
{
    return deviceAt(row).value(DeviceRowKey::ipport).toString();
}

QString BatchPreview::warnings() const
{
    constexpr qsizetype shown = 3;
    QStringList lines;
    for (int row = 0; row < rowCount() && lines.size() <= shown; ++row) {
        const Judgement judgement = m_judgements.value(row);
        if (judgement.kind != Warned)
            continue;
        //: A device, what it gets, and a warning about that.
        lines.append(lines.size() == shown
                         ? QStringLiteral("…")
                         : tr("%1（%2）：%3").arg(addressAndPortOf(row), judgement.action, judgement.note));
    }
    return lines.join(QLatin1Char('\n'));
}

QString BatchPreview::hindranceOf(int row) const
{
    const QVariantMap device = deviceAt(row);
    QString own = device.value(RowKey::hindrance).toString();
    if (!own.isEmpty())
        return own;
    if (!device.value(DeviceRowKey::state, true).toBool())
        return tr("未初始化，不会执行");
    if (UpgradeTools::isRunning(device.value(DeviceRowKey::upgraderes, int(UpgradeTools::None)).toInt()))
        return tr("正在升级，不会执行");
    return {};
}

bool BatchPreview::isTaken(const QString &address, const QString &identity) const
{
    const auto isStaying = [&](const QString &holder) {
        return holder != identity && !m_readdressed.contains(holder);
    };
    const QStringList holders = m_identitiesAt.values(address);
    return !address.isEmpty() &&
           (m_newAddresses.value(address) > 1 || std::any_of(holders.cbegin(), holders.cend(), isStaying));
}

BatchPreview::Judgement BatchPreview::judgementOf(int row) const
{
    const QString hindrance = hindranceOf(row);
    if (!hindrance.isEmpty())
        return {.kind = Skipped, .note = hindrance};
    const QVariantMap device = deviceAt(row);
    const QString action = device.value(RowKey::action, m_action).toString();
    if (isTaken(device.value(RowKey::newAddress).toString(), identityOf(device)))
        return {.kind = Warned, .action = action, .note = tr("与其他设备冲突"), .isConflict = true};
    const int own = device.value(DeviceRowKey::lost).toBool() ? 0 : 1;
    if (m_devicesAt.value(addressAndPortOf(row)) > own)
        return {.kind = Warned,
                .action = action,
                .note = tr("IP地址冲突，可能作用于另一台设备"),
                .isConflict = true};
    return {.action = action};
}

void BatchPreview::rejudge()
{
    prepare();
    m_readdressed.clear();
    m_newAddresses.clear();
    for (int row = 0; row < rowCount(); ++row) {
        const QVariantMap device = deviceAt(row);
        const QString newAddress = device.value(RowKey::newAddress).toString();
        if (isChecked(row) && !newAddress.isEmpty() && hindranceOf(row).isEmpty()) {
            m_readdressed.insert(identityOf(device));
            ++m_newAddresses[newAddress];
        }
    }
    m_judgements.clear();
    m_judgements.reserve(rowCount());
    m_warningCount = 0;
    m_skippedCount = 0;
    for (int row = 0; row < rowCount(); ++row) {
        m_judgements.append(isChecked(row) ? judgementOf(row) : Judgement());
        m_warningCount += m_judgements.constLast().kind == Warned ? 1 : 0;
        m_skippedCount += m_judgements.constLast().kind == Skipped ? 1 : 0;
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT judged();
}

QVariantMap BatchPreview::valuesOf(int row) const
{
    QVariantMap values = DeviceSelection::valuesOf(row);
    const Judgement judgement = m_judgements.value(row); // not computed yet during setRows()
    values.insert(DeviceRowKey::num, row + 1);
    values.insert(RowKey::action, judgement.action);
    values.insert(RowKey::note, judgement.note);
    values.insert(RowKey::kind, judgement.kind);
    return values;
}

bool BatchPreview::isInConflict(int row) const
{
    return m_judgements.value(row).isConflict;
}
