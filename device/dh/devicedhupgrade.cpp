// Firmware upgrades of the devices of rows, and of those of documents.
#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "device/dh/firmwarefile.h"
#include "device/dh/internal/devicelistfile.h"
#include "device/dh/upgraderunner.h"
#include "device/logging.h"

namespace {

/// What a line lacks, and what its file is; None when it can be upgraded.
UpgradeTools::Result refusalOf(const UpgradeDocumentLine &line, const UpgradeOrder &order)
{
    if (line.refusal != UpgradeTools::None)
        return line.refusal;
    const FirmwareFile file = firmwareFile(order.file);
    return file.refusal == UpgradeTools::None && !file.fits(order.model) ? UpgradeTools::WrongModel
                                                                         : file.refusal;
}

} // namespace

void CDeviceDH::setUpgradeFilePath(const QString &mac, const QString &path)
{
    if (m_upgrades->isUpgrading(mac))
        return;
    store().changeRow(mac, [file = localPath(path)](QJsonObject &row) {
        row.insert(DeviceRowKey::filepath, file);
        row.insert(DeviceRowKey::upgrade, 0);
        row.insert(DeviceRowKey::upgraderes, UpgradeTools::None);
        row.insert(DeviceRowKey::upgradetext, QString());
    });
}

void CDeviceDH::startUpgrade(const QStringList &macs)
{
    for (const QString &mac : macs) {
        const QJsonObject row = store().row(mac);
        if (row.isEmpty())
            qCWarning(logDevice) << "CDeviceDH::startUpgrade: there is no device" << mac;
        else
            m_upgrades->start(upgradeOrder(row));
    }
    noteHeldRows();
}

void CDeviceDH::stopUpgrade(const QString &mac)
{
    m_upgrades->stop(mac);
}

bool CDeviceDH::isUpgradingAt(const QString &ipport) const
{
    return m_upgrades->isUpgrading(ipport) ||
           m_upgrades->isUpgrading(store().rowAt(ipport).value(DeviceRowKey::mac).toString());
}

void CDeviceDH::noteHeldRows()
{
    if (!m_heldRowsNoted.exchange(true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_heldRowsNoted = false;
                Q_EMIT signalCDeviceAddSingleDeviceToTable();
            },
            Qt::QueuedConnection);
}

bool CDeviceDH::hasDeviceUpgrading()
{
    return m_upgrades->isUpgrading() || m_upgradeDocuments.hasOpen();
}

UpgradeOrder CDeviceDH::upgradeOrder(const QJsonObject &row) const
{
    const QString mac = row.value(DeviceRowKey::mac).toString();
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const Credentials credentials = credentialsOf(ipport);
    return {.key = mac,
            .mac = mac,
            .ipport = ipport,
            .account = credentials.account,
            .password = credentials.password,
            .model = row.value(DeviceRowKey::model).toString(),
            .file = row.value(DeviceRowKey::filepath).toString()};
}

UpgradeOrder CDeviceDH::upgradeOrder(const UpgradeDocumentLine &line) const
{
    UpgradeOrder order = upgradeOrder(store().rowAt(line.ipport));
    order.ipport = line.ipport;
    order.file = line.file;
    if (order.key.isEmpty())
        order.key = line.ipport;
    const Credentials usual = credentialsOf(line.ipport);
    order.account = line.user.isEmpty() ? usual.account : line.user;
    order.password = line.user.isEmpty() && line.password.isEmpty() ? usual.password : line.password;
    return order;
}

QVariantList CDeviceDH::importUpgradeDocument(const QString &file)
{
    UpgradeDocument document;
    m_importError = document.open(localPath(file));
    QVariantList report;
    if (!m_importError.isEmpty())
        return report;
    for (const UpgradeDocumentLine &line : document.lines()) {
        const UpgradeOrder order = upgradeOrder(line);
        const UpgradeTools::Result refusal = refusalOf(line, order);
        report.append(QVariantMap{{QStringLiteral("line"), line.row},
                                  {QStringLiteral("address"), line.ipport},
                                  {QStringLiteral("mac"), order.mac},
                                  {QStringLiteral("file"), line.file},
                                  {QStringLiteral("code"), static_cast<int>(refusal)},
                                  {QStringLiteral("reason"), UpgradeTools::text(refusal)}});
    }
    return report;
}

void CDeviceDH::startUpgradeByDocument(const QStringList &paths)
{
    if (!m_upgradeDocuments.hasOpen())
        m_upgradeDocuments.begin();
    for (const QString &path : paths) {
        auto document = std::make_unique<UpgradeDocument>();
        const QString refusal = document->open(localPath(path));
        if (!refusal.isEmpty()) {
            m_upgradeDocuments.addRefused(path, refusal);
            continue;
        }
        const std::vector<UpgradeDocumentLine> lines = document->lines();
        m_upgradeDocuments.add(path, std::move(document));
        for (const UpgradeDocumentLine &line : lines) {
            const UpgradeOrder order = upgradeOrder(line);
            const UpgradeTools::Result lineRefusal = refusalOf(line, order);
            if (lineRefusal != UpgradeTools::None) {
                m_upgradeDocuments.refuse(line.row, UpgradeTools::text(lineRefusal));
            } else if (m_upgrades->isUpgrading(order.key)) { // from another document, or from the table
                m_upgradeDocuments.refuse(line.row, UpgradeTools::text(UpgradeTools::DeviceBusy));
            } else {
                m_upgradeDocuments.follow(order.key, line.row);
                store().changeRow(order.mac, [&order](QJsonObject &row) {
                    row.insert(DeviceRowKey::filepath, order.file);
                });
                if (!m_upgrades->start(order))
                    m_upgradeDocuments.note(order.key, UpgradeTools::Cut, 0,
                                            UpgradeTools::text(UpgradeTools::Cut));
            }
        }
    }
    noteUpgradeDocuments();
    noteHeldRows();
    if (!hasDeviceUpgrading()) // no line could be upgraded
        QMetaObject::invokeMethod(this, &CDeviceDH::noteUpgradeRoundEnd, Qt::QueuedConnection);
}

QString CDeviceDH::upgradeDocumentResult()
{
    return m_upgradeDocuments.resultText().trimmed();
}

QVariantMap CDeviceDH::upgradeDocumentProgress()
{
    const UpgradeDocuments::Progress progress = m_upgradeDocuments.progress();
    return {{QStringLiteral("done"), progress.done}, {QStringLiteral("total"), progress.total}};
}

void CDeviceDH::noteUpgrade(const UpgradeOrder &order, const UpgradeState &state)
{
    store().changeRow(order.mac, [&state](QJsonObject &row) {
        row.insert(DeviceRowKey::upgrade, state.percent);
        row.insert(DeviceRowKey::upgraderes, state.result);
        row.insert(DeviceRowKey::upgradetext, state.text);
        if (!state.version.isEmpty())
            row.insert(DeviceRowKey::vision, versionText(state.version));
    });
    Q_EMIT signalCDeviceUpdateSchedule(m_upgrades->percent());
    if (!UpgradeTools::isRunning(state.result))
        noteHeldRows();
    if (!m_upgradeDocuments.isFollowed(order.key))
        return;
    m_upgradeDocuments.note(order.key, state.result, state.percent, state.text);
    QMetaObject::invokeMethod(this, &CDeviceDH::noteUpgradeDocuments, Qt::QueuedConnection);
}

void CDeviceDH::noteUpgradeDocuments()
{
    for (const UpgradeDocuments::Schedule &schedule : m_upgradeDocuments.update())
        Q_EMIT signalCDeviceUpdateScheduleUpgradeByDocument(schedule.name, schedule.percent);
}

void CDeviceDH::noteUpgradeRoundEnd()
{
    noteUpgradeDocuments();
    if (!m_upgrades->isUpgrading()) // else another round has begun
        Q_EMIT signalCDeviceShowUpgradeFinishTip();
}
