// Firmware upgrades of the devices of rows, and of those of documents.
#include "device/batch/batchplan.h"
#include "device/dh/devicedh.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/upgrade/firmwarefile.h"
#include "device/dh/upgrade/upgraderunner.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"
#include "device/registry/localpath.h"
#include "device/registry/logging.h"
#include "sdk/threadpriority.h"

#include <algorithm>

namespace {

/// What a line lacks, and what its file is; None when it can be upgraded.
UpgradeTools::Result refusalOf(const UpgradeDocumentLine &line, const QString &model, FirmwareFiles &files)
{
    return line.refusal != UpgradeTools::None ? line.refusal : files.at(line.file).refusalFor(model);
}

/// What importUpgradeDocument() returns of a line. `row` is empty if no device of the list has its address.
QVariantMap reportOf(const UpgradeDocumentLine &line, const QJsonObject &row, FirmwareFiles &files)
{
    const UpgradeTools::Result refusal = refusalOf(line, row.value(DeviceRowKey::model).toString(), files);
    const FirmwareFile &firmware = files.at(line.file);
    return {{QStringLiteral("line"), line.row},
            {QStringLiteral("address"), line.ipport},
            {QStringLiteral("mac"), rowName(row)},
            {QStringLiteral("file"), line.file},
            {QStringLiteral("version"),
             firmware.head ? QString::fromStdString(firmware.head->version) : QString()},
            {QStringLiteral("code"), static_cast<int>(refusal)},
            {QStringLiteral("reason"), UpgradeTools::text(refusal)}};
}

/// Of what is not upgraded.
DeviceStep refusedStep(UpgradeTools::Result refusal)
{
    return [refusal](const StepControl &) {
        return StepOutcome{.result = UpgradeTools::batchResult(refusal), .text = UpgradeTools::text(refusal)};
    };
}

} // namespace

void CDeviceDH::setUpgradeFilePath(const QString &mac, const QString &path)
{
    setUpgradeFiles({mac}, path);
}

QList<int> CDeviceDH::setUpgradeFiles(const QStringList &macs, const QString &path)
{
    const QString file = localPath(path);
    const FirmwareFile firmware = file.isEmpty() ? FirmwareFile() : firmwareFile(file);
    QList<int> refusals;
    refusals.reserve(macs.size());
    for (const QString &mac : macs)
        refusals.append(setUpgradeFile(mac, file, firmware));
    return refusals;
}

UpgradeTools::Result CDeviceDH::setUpgradeFile(const QString &mac, const QString &file,
                                               const FirmwareFile &firmware)
{
    if (m_upgrades->isUpgrading(mac))
        return UpgradeTools::DeviceBusy;
    UpgradeTools::Result refusal = UpgradeTools::None;
    store().changeRowNamed(mac, [&](QJsonObject &row) {
        refusal = firmware.refusalFor(row.value(DeviceRowKey::model).toString());
        row.insert(DeviceRowKey::filepath, file);
        row.insert(DeviceRowKey::upgrade, 0);
        row.insert(DeviceRowKey::upgraderes, refusal);
        row.insert(DeviceRowKey::upgradetext, UpgradeTools::text(refusal));
    });
    return refusal;
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
    m_signals.noteChangedRows();
}

DeviceStep CDeviceDH::upgradeStep(const QString &mac)
{
    const QJsonObject row = store().rowNamed(mac);
    if (row.isEmpty() && !m_rowlessOrders.contains(mac)) {
        return [words = tr("设备已不在列表中")](const StepControl &) {
            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = words};
        };
    }
    m_signals.noteChangedRows();
    return m_upgrades->step(row.isEmpty() ? m_rowlessOrders.value(mac) : upgradeOrder(row));
}

DeviceStep CDeviceDH::repeatedDocumentStep(const QString &mac)
{
    const bool isKnown = !store().rowNamed(mac).isEmpty() || m_rowlessOrders.contains(mac);
    if (isKnown && !m_upgrades->isUpgrading(mac))
        m_upgradeDocuments.repeat(mac);
    return upgradeStep(mac);
}

QList<PlannedUpgrade> CDeviceDH::plannedUpgrades(const QStringList &macs)
{
    QList<PlannedUpgrade> plans;
    plans.reserve(macs.size());
    FirmwareFiles files;
    for (const QString &mac : macs) {
        const QJsonObject row = store().rowNamed(mac);
        const QString path = row.value(DeviceRowKey::filepath).toString();
        const FirmwareFile &file = files.at(path);
        plans.append({.refusal = file.refusalFor(row.value(DeviceRowKey::model).toString()),
                      .file = path,
                      .version = file.head ? QString::fromStdString(file.head->version) : QString()});
    }
    return plans;
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

bool CDeviceDH::hasDeviceUpgrading()
{
    return m_upgrades->isUpgrading() || m_upgradeDocuments.hasOpen();
}

UpgradeOrder CDeviceDH::upgradeOrder(const QJsonObject &row) const
{
    const QString name = rowName(row);
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const DeviceAccount credentials = upgradeCredentials(row);
    return {.key = name,
            .row = name,
            .ipport = ipport,
            .account = credentials.account,
            .password = credentials.password,
            .model = row.value(DeviceRowKey::model).toString(),
            .file = row.value(DeviceRowKey::filepath).toString(),
            .device = workKey(store().rowAt(ipport), ipport, name)};
}

DeviceAccount CDeviceDH::upgradeCredentials(const QJsonObject &row) const
{
    DeviceAccount usual = m_logins->accountOf(row);
    const auto known = m_documentAccounts.constFind(rowName(row));
    if (known == m_documentAccounts.cend() || known->usual != usual)
        return usual;
    const int result = row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None);
    const bool isRefused = result == UpgradeTools::WrongPassword || result == UpgradeTools::NoSuchAccount;
    return isRefused ? usual : known->used;
}

QHash<QString, QJsonObject> CDeviceDH::rowsByAddress() const
{
    return ::rowsByAddress(store().ipv4Rows() + store().ipv6Rows());
}

UpgradeOrder CDeviceDH::upgradeOrder(const UpgradeDocumentLine &line, const QJsonObject &row) const
{
    UpgradeOrder order = upgradeOrder(row);
    order.ipport = line.ipport;
    order.file = line.file;
    if (order.key.isEmpty())
        order.key = line.ipport;
    order.device = workKey(store().rowAt(line.ipport), line.ipport, order.key);
    const DeviceAccount usual = m_logins->accountOf(row);
    order.account = line.user.isEmpty() ? usual.account : line.user;
    order.password = line.user.isEmpty() && line.password.isEmpty() ? usual.password : line.password;
    return order;
}

QVariantList CDeviceDH::importUpgradeDocument(const QString &file)
{
    const OpenedUpgradeDocument opened = openUpgradeDocument(localPath(file));
    m_importError = opened.refusal;
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    QVariantList report;
    for (const UpgradeDocumentLine &line : opened.lines)
        report.append(reportOf(line, rows.value(line.ipport), files));
    return report;
}

SceneStep CDeviceDH::upgradeDocumentReading(const QString &path)
{
    return [this, path](const StepControl &) {
        const auto opened = std::make_shared<OpenedUpgradeDocument>(openUpgradeDocument(localPath(path)));
        const QHash<QString, QJsonObject> rows = rowsByAddress();
        FirmwareFiles files;
        QVariantList lines;
        for (const UpgradeDocumentLine &line : opened->lines) {
            const QJsonObject row = rows.value(line.ipport);
            QVariantMap report = reportOf(line, row, files);
            report.insert(QStringLiteral("device"), row.toVariantMap());
            lines.append(report);
        }
        return SceneOutcome{.value = QVariantMap{{QStringLiteral("refusal"), opened->refusal},
                                                 {QStringLiteral("lines"), lines}},
                            .take = [this, opened] {
                                m_openedDocument = opened;
                            }};
    };
}

std::vector<UpgradeDocumentLine> CDeviceDH::addUpgradeDocument(const QString &path)
{
    const QString file = localPath(path);
    std::shared_ptr<OpenedUpgradeDocument> opened = std::move(m_openedDocument);
    if (!opened || !opened->isCurrent(file))
        opened = std::make_shared<OpenedUpgradeDocument>(openUpgradeDocument(file));
    if (opened->document)
        m_upgradeDocuments.add(path, std::move(opened->document));
    else
        m_upgradeDocuments.addRefused(path, opened->refusal);
    return std::move(opened->lines);
}

UpgradeTools::Result CDeviceDH::followLine(const UpgradeDocumentLine &line, const UpgradeOrder &order,
                                           const QJsonObject &row, FirmwareFiles &files)
{
    UpgradeTools::Result refusal = refusalOf(line, order.model, files);
    if (refusal == UpgradeTools::None && m_upgrades->isUpgrading(order.key)) // from another document
        refusal = UpgradeTools::DeviceBusy;
    if (refusal != UpgradeTools::None) {
        m_upgradeDocuments.refuse(line.row, UpgradeTools::text(refusal));
        return refusal;
    }
    m_upgradeDocuments.follow(order.key, line);
    if (order.row.isEmpty())
        m_rowlessOrders.insert(order.key, order);
    else
        m_documentAccounts.insert(
            order.row, {.used = {order.account, order.password}, .usual = m_logins->accountOf(row)});
    store().changeRowNamed(
        order.row, [&order](QJsonObject &changed) { changed.insert(DeviceRowKey::filepath, order.file); });
    return UpgradeTools::None;
}

void CDeviceDH::startUpgradeByDocument(const QStringList &paths)
{
    if (!m_upgradeDocuments.hasOpen())
        m_upgradeDocuments.begin();
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    for (const QString &path : paths) {
        const std::vector<UpgradeDocumentLine> lines = addUpgradeDocument(path);
        for (const UpgradeDocumentLine &line : lines) {
            const QJsonObject row = rows.value(line.ipport);
            const UpgradeOrder order = upgradeOrder(line, row);
            if (followLine(line, order, row, files) == UpgradeTools::None && !m_upgrades->start(order))
                m_upgradeDocuments.note(order.key, UpgradeTools::Cut, 0,
                                        UpgradeTools::text(UpgradeTools::Cut));
        }
    }
    noteDocumentsBegun();
}

QList<UpgradeDocumentStep> CDeviceDH::upgradeDocumentSteps(const QString &path, const QList<int> &lines)
{
    if (!m_upgradeDocuments.hasOpen())
        m_upgradeDocuments.begin();
    QList<UpgradeDocumentStep> steps;
    const QSet<int> wanted(lines.cbegin(), lines.cend());
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    const std::vector<UpgradeDocumentLine> all = addUpgradeDocument(path);
    for (const UpgradeDocumentLine &line : all) {
        if (!wanted.contains(line.row))
            continue;
        const QJsonObject row = rows.value(line.ipport);
        const UpgradeOrder order = upgradeOrder(line, row);
        const UpgradeTools::Result refusal = followLine(line, order, row, files);
        steps.append(
            {.line = line.row,
             .device = order.key,
             .ipport = line.ipport,
             .step = refusal == UpgradeTools::None ? m_upgrades->step(order) : refusedStep(refusal)});
    }
    noteDocumentsBegun();
    return steps;
}

void CDeviceDH::noteDocumentsBegun()
{
    noteUpgradeDocuments();
    m_signals.noteChangedRows();
    if (!m_upgrades->isUpgrading()) // no line could be upgraded
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
    if (!order.row.isEmpty()) {
        const std::lock_guard lock(m_changedUpgradesMutex);
        m_changedUpgrades.insert(order.row);
    }
    noteSchedule();
    if (!UpgradeTools::isRunning(state.result))
        m_signals.noteChangedRows();
}

QStringList CDeviceDH::takeChangedUpgrades()
{
    const std::lock_guard lock(m_changedUpgradesMutex);
    QStringList names = m_changedUpgrades.values();
    m_changedUpgrades.clear();
    return names;
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
    if (m_upgrades->isUpgrading()) // another round has begun
        return;
    m_isRoundEndUntold = m_upgradeDocuments.hasOpen();
    if (!m_isRoundEndUntold)
        Q_EMIT signalCDeviceShowUpgradeFinishTip();
}

void CDeviceDH::writeDocument(const std::function<void()> &write, const std::function<void()> &written)
{
    m_documentFiles.start([this, write, written] {
        sdk::giveWayToWindow();
        write();
        QMetaObject::invokeMethod(
            this,
            [this, written] {
                written();
                if (m_isRoundEndUntold)
                    noteUpgradeRoundEnd();
                else
                    noteUpgradeDocuments();
            },
            Qt::QueuedConnection);
    });
}
