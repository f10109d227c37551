// Firmware upgrades of the devices of rows, and of those of documents.
#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "device/dh/firmwarefile.h"
#include "device/dh/internal/devicelistfile.h"
#include "device/dh/upgraderunner.h"
#include "device/logging.h"

#include <algorithm>

namespace {

UpgradeTools::Result refusalOf(const FirmwareFile &file, const QString &model)
{
    return file.refusal == UpgradeTools::None && !file.fits(model) ? UpgradeTools::WrongModel : file.refusal;
}

/// Looks at files, at each of them once.
class FirmwareFiles
{
public:
    /// What a line lacks, and what its file is; None when it can be upgraded.
    [[nodiscard]] UpgradeTools::Result refusalOf(const UpgradeDocumentLine &line, const UpgradeOrder &order)
    {
        if (line.refusal != UpgradeTools::None)
            return line.refusal;
        if (!m_files.contains(order.file))
            m_files.insert(order.file, firmwareFile(order.file));
        return ::refusalOf(m_files.value(order.file), order.model);
    }

private:
    QHash<QString, FirmwareFile> m_files;
};

} // namespace

void CDeviceDH::setUpgradeFilePath(const QString &mac, const QString &path)
{
    if (m_upgrades->isUpgrading(mac))
        return;
    const QString file = localPath(path);
    const FirmwareFile firmware = file.isEmpty() ? FirmwareFile() : firmwareFile(file);
    store().changeRowNamed(mac, [&](QJsonObject &row) {
        const UpgradeTools::Result refusal = refusalOf(firmware, row.value(DeviceRowKey::model).toString());
        row.insert(DeviceRowKey::filepath, file);
        row.insert(DeviceRowKey::upgrade, 0);
        row.insert(DeviceRowKey::upgraderes, refusal);
        row.insert(DeviceRowKey::upgradetext, UpgradeTools::text(refusal));
    });
}

void CDeviceDH::startUpgrade(const QStringList &macs)
{
    for (const QString &mac : macs) {
        const QJsonObject row = store().rowNamed(mac);
        if (row.isEmpty())
            qCWarning(logDevice) << "CDeviceDH::startUpgrade: there is no device" << mac;
        else
            m_upgrades->start(upgradeOrder(row));
    }
    noteChangedRows();
}

QStringList CDeviceDH::upgradesToRetry()
{
    QStringList names;
    for (const QVariant &value : store().ipv4Rows() + store().ipv6Rows()) {
        const QJsonObject row = value.toJsonObject();
        if (UpgradeTools::canTryAgain(row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None)))
            names.append(rowName(row));
    }
    return names;
}

void CDeviceDH::stopUpgrade(const QString &mac)
{
    m_upgrades->stop(mac);
}

bool CDeviceDH::isUpgradingAt(const QString &ipport) const
{
    if (!m_upgrades->isUpgrading()) // there is no need to look for the rows
        return false;
    // Several devices may have one address. Which of them answers at it is not known.
    const QStringList names = QStringList(ipport) + store().namesAt(ipport);
    return std::any_of(names.cbegin(), names.cend(),
                       [this](const QString &name) { return m_upgrades->isUpgrading(name); });
}

void CDeviceDH::noteChangedRows()
{
    if (!m_changedRowsNoted.exchange(true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_changedRowsNoted = false;
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
    const QString name = rowName(row);
    const Credentials credentials = upgradeCredentials(row);
    return {.key = name,
            .row = name,
            .ipport = row.value(DeviceRowKey::ipport).toString(),
            .account = credentials.account,
            .password = credentials.password,
            .model = row.value(DeviceRowKey::model).toString(),
            .file = row.value(DeviceRowKey::filepath).toString()};
}

CDeviceDH::Credentials CDeviceDH::upgradeCredentials(const QJsonObject &row) const
{
    Credentials usual = credentialsOf(row);
    const auto known = m_documentAccounts.constFind(rowName(row));
    if (known == m_documentAccounts.cend() || known->usual != usual)
        return usual;
    const int result = row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None);
    const bool isRefused = result == UpgradeTools::WrongPassword || result == UpgradeTools::NoSuchAccount;
    return isRefused ? usual : known->used;
}

QHash<QString, QJsonObject> CDeviceDH::rowsByAddress() const
{
    QHash<QString, QJsonObject> rows;
    for (const QVariant &value : store().ipv4Rows() + store().ipv6Rows()) {
        const QJsonObject row = value.toJsonObject();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        if (!rows.contains(ipport)) // several may have it
            rows.insert(ipport, row);
    }
    return rows;
}

UpgradeOrder CDeviceDH::upgradeOrder(const UpgradeDocumentLine &line, const QJsonObject &row) const
{
    UpgradeOrder order = upgradeOrder(row);
    order.ipport = line.ipport;
    order.file = line.file;
    if (order.key.isEmpty())
        order.key = line.ipport;
    const Credentials usual = credentialsOf(row);
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
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    for (const UpgradeDocumentLine &line : document.lines()) {
        const UpgradeOrder order = upgradeOrder(line, rows.value(line.ipport));
        const UpgradeTools::Result refusal = files.refusalOf(line, order);
        report.append(QVariantMap{{QStringLiteral("line"), line.row},
                                  {QStringLiteral("address"), line.ipport},
                                  {QStringLiteral("mac"), order.row},
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
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
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
            const QJsonObject row = rows.value(line.ipport);
            const UpgradeOrder order = upgradeOrder(line, row);
            const UpgradeTools::Result lineRefusal = files.refusalOf(line, order);
            if (lineRefusal != UpgradeTools::None) {
                m_upgradeDocuments.refuse(line.row, UpgradeTools::text(lineRefusal));
            } else if (m_upgrades->isUpgrading(order.key)) { // from another document, or from the table
                m_upgradeDocuments.refuse(line.row, UpgradeTools::text(UpgradeTools::DeviceBusy));
            } else {
                m_upgradeDocuments.follow(order.key, line.row);
                if (!order.row.isEmpty())
                    m_documentAccounts.insert(
                        order.row, {.used = {order.account, order.password}, .usual = credentialsOf(row)});
                store().changeRowNamed(order.row, [&order](QJsonObject &changed) {
                    changed.insert(DeviceRowKey::filepath, order.file);
                });
                if (!m_upgrades->start(order))
                    m_upgradeDocuments.note(order.key, UpgradeTools::Cut, 0,
                                            UpgradeTools::text(UpgradeTools::Cut));
            }
        }
    }
    noteUpgradeDocuments();
    noteChangedRows();
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

int CDeviceDH::upgradeDocumentSuccesses()
{
    return m_upgradeDocuments.succeeded();
}

void CDeviceDH::noteUpgrade(const UpgradeOrder &order, const UpgradeState &state)
{
    store().changeRowNamed(order.row, [&state](QJsonObject &row) {
        row.insert(DeviceRowKey::upgrade, state.percent);
        row.insert(DeviceRowKey::upgraderes, state.result);
        row.insert(DeviceRowKey::upgradetext, state.text);
        if (!state.version.isEmpty())
            row.insert(DeviceRowKey::vision, versionText(state.version));
    });
    m_upgradeDocuments.note(order.key, state.result, state.percent, state.text);
    noteSchedule();
    if (!UpgradeTools::isRunning(state.result))
        noteChangedRows();
}

void CDeviceDH::noteSchedule()
{
    if (!m_scheduleNoted.exchange(true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_scheduleNoted = false;
                Q_EMIT signalCDeviceUpdateSchedule(m_upgrades->percent());
                noteUpgradeDocuments();
            },
            Qt::QueuedConnection);
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
