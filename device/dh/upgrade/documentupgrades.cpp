#include "device/dh/upgrade/documentupgrades.h"

#include "device/batch/batchplan.h"
#include "device/dh/upgrade/firmwarefile.h"
#include "device/dh/upgrade/upgradeorders.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/localpath.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"

#include <QSet>

#include <utility>

namespace {

/// Why a line cannot be upgraded, from the line and its file; None if it can.
UpgradeTools::Result refusalOf(const UpgradeDocumentLine &line, const QString &model, FirmwareFiles &files)
{
    return line.refusal != UpgradeTools::None ? line.refusal : files.at(line.file).refusalFor(model);
}

/// The map of importUpgradeDocument() for a line. `row` is empty if the list has no device with its address.
QVariantMap reportOf(const UpgradeDocumentLine &line, const QJsonObject &row, FirmwareFiles &files)
{
    const UpgradeTools::Result refusal = refusalOf(line, row.value(DeviceRowKey::model).toString(), files);
    const FirmwareFile &firmware = files.at(line.file);
    return {
        {ListLineKey::line, line.row},
        {ListLineKey::address, line.ipport},
        {ListLineKey::mac, rowName(row)},
        {ListLineKey::file, line.file},
        {ListLineKey::version, firmware.head ? QString::fromStdString(firmware.head->version) : QString()},
        {ListLineKey::code, static_cast<int>(refusal)},
        {ListLineKey::reason, UpgradeTools::text(refusal)}};
}

/// Step of a line that cannot be upgraded: returns the refusal.
DeviceStep refusedStep(UpgradeTools::Result refusal)
{
    return [refusal](const StepControl &) {
        return StepOutcome{.result = UpgradeTools::batchResult(refusal), .text = UpgradeTools::text(refusal)};
    };
}

} // namespace

DocumentUpgrades::DocumentUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round,
                                   UpgradeOrders &orders)
    : m_store(std::move(store)), m_round(round), m_orders(orders)
{
}

QHash<QString, QJsonObject> DocumentUpgrades::rowsByAddress() const
{
    return ::rowsByAddress(m_store->ipv4Rows() + m_store->ipv6Rows());
}

QVariantList DocumentUpgrades::report(const QString &path, QString &refusal) const
{
    const OpenedUpgradeDocument opened = openUpgradeDocument(localPath(path));
    refusal = opened.refusal;
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    QVariantList report;
    for (const UpgradeDocumentLine &line : opened.lines)
        report.append(reportOf(line, rows.value(line.ipport), files));
    return report;
}

PageStep DocumentUpgrades::reading(const QString &path)
{
    return [this, path](const StepControl &) {
        const auto opened = std::make_shared<OpenedUpgradeDocument>(openUpgradeDocument(localPath(path)));
        const QHash<QString, QJsonObject> rows = rowsByAddress();
        FirmwareFiles files;
        QVariantList lines;
        for (const UpgradeDocumentLine &line : opened->lines) {
            const QJsonObject row = rows.value(line.ipport);
            QVariantMap report = reportOf(line, row, files);
            report.insert(ListLineKey::device, row.toVariantMap());
            lines.append(report);
        }
        return PageOutcome{.value = QVariantMap{{UpgradeDocumentKey::refusal, opened->refusal},
                                                {UpgradeDocumentKey::lines, lines}},
                           .take = [this, opened] {
                               m_opened = opened;
                           }};
    };
}

std::vector<UpgradeDocumentLine> DocumentUpgrades::add(const QString &path)
{
    const QString file = localPath(path);
    std::shared_ptr<OpenedUpgradeDocument> opened = std::move(m_opened);
    if (!opened || !opened->isCurrent(file))
        opened = std::make_shared<OpenedUpgradeDocument>(openUpgradeDocument(file));
    if (opened->document)
        m_round.documents().add(path, std::move(opened->document));
    else
        m_round.documents().addRefused(path, opened->refusal);
    return std::move(opened->lines);
}

UpgradeTools::Result DocumentUpgrades::follow(const UpgradeDocumentLine &line, const UpgradeOrder &order,
                                              const QJsonObject &row, FirmwareFiles &files)
{
    UpgradeTools::Result refusal = refusalOf(line, order.model, files);
    if (refusal == UpgradeTools::None && m_round.isUpgrading(order.key)) // by another document or batch
        refusal = UpgradeTools::DeviceBusy;
    if (refusal != UpgradeTools::None) {
        m_round.documents().refuse(line.row, UpgradeTools::text(refusal));
        return refusal;
    }
    m_round.documents().follow(order.key, line);
    m_orders.keep(order, row);
    m_store->changeRowNamed(
        order.row, [&order](QJsonObject &changed) { changed.insert(DeviceRowKey::filepath, order.file); });
    return UpgradeTools::None;
}

void DocumentUpgrades::begin()
{
    if (!m_round.documents().hasOpen())
        m_round.documents().begin();
}

void DocumentUpgrades::start(const QStringList &paths)
{
    begin();
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    for (const QString &path : paths) {
        const std::vector<UpgradeDocumentLine> lines = add(path);
        for (const UpgradeDocumentLine &line : lines) {
            const QJsonObject row = rows.value(line.ipport);
            const UpgradeOrder order = m_orders.orderOf(line, row);
            if (follow(line, order, row, files) == UpgradeTools::None && !m_round.runner().start(order))
                m_round.documents().note(order.key, UpgradeTools::Cut, 0,
                                         UpgradeTools::text(UpgradeTools::Cut));
        }
    }
    m_round.noteDocumentsBegun();
}

QList<UpgradeDocumentStep> DocumentUpgrades::steps(const QString &path, const QList<int> &lines)
{
    begin();
    QList<UpgradeDocumentStep> steps;
    const QSet<int> wanted(lines.cbegin(), lines.cend());
    const QHash<QString, QJsonObject> rows = rowsByAddress();
    FirmwareFiles files;
    const std::vector<UpgradeDocumentLine> all = add(path);
    for (const UpgradeDocumentLine &line : all) {
        if (!wanted.contains(line.row))
            continue;
        const QJsonObject row = rows.value(line.ipport);
        const UpgradeOrder order = m_orders.orderOf(line, row);
        const UpgradeTools::Result refusal = follow(line, order, row, files);
        steps.append(
            {.line = line.row,
             .device = order.key,
             .ipport = line.ipport,
             .step = refusal == UpgradeTools::None ? m_round.runner().step(order) : refusedStep(refusal)});
    }
    m_round.noteDocumentsBegun();
    return steps;
}
