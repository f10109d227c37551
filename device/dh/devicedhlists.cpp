// Device lists: exporting devices to a file, and logging in to those of a file.
#include "device/dh/devicedh.h"
#include "device/dh/lists/devicelistfile.h"
#include "device/dh/lists/devicelistimport.h"
#include "device/dh/lists/devicelistvalues.h"
#include "device/registry/devicestore.h"
#include "device/registry/logging.h"

#include <QCoreApplication>

#include <utility>

namespace {

/// A character for the user, who may not see it otherwise.
QString namedCharacter(const QString &character)
{
    const char32_t code = character.toUcs4().value(0);
    const QString number =
        QStringLiteral("U+%1").arg(static_cast<uint>(code), 4, 16, QLatin1Char('0')).toUpper();
    const bool isShown = QChar::isPrint(code) && !QChar::isSpace(code);
    return isShown ? character + QStringLiteral(" (%1)").arg(number) : number;
}

QVariantMap faultMap(const DeviceListLine &line, const UnreadableText &fault)
{
    const ListColumnName &name = listColumnNames().at(static_cast<std::size_t>(fault.column));
    return {{QStringLiteral("address"), line[ListColumn::IPAddress].left(maximumListText)},
            {QStringLiteral("name"), line[ListColumn::DeviceName].left(maximumListText)},
            {QStringLiteral("column"), QStringLiteral("%1 (%2)").arg(name.header, name.element)},
            {QStringLiteral("reason"),
             line[fault.column].isEmpty() ? QCoreApplication::translate("DeviceList", "设备地址无效")
             : fault.character.isEmpty()
                 ? QCoreApplication::translate("DeviceList", "字段过长")
                 : QCoreApplication::translate("DeviceList", "字符 %1 在此格式中无法读回")
                       .arg(namedCharacter(fault.character))}};
}

} // namespace

/// The stored accounts of devices are the user's own: their passwords do not leave the program.
DeviceAccount CDeviceDH::listedAccount(const QJsonObject &row) const
{
    AccountChoice::Chosen chosen = m_accounts.of(row);
    if (chosen.source == AccountChoice::Source::Stored)
        chosen.account.password.clear();
    return chosen.account;
}

bool CDeviceDH::exportDevice(const QString &folder, const QStringList &macs, const QString &fileName)
{
    std::vector<DeviceListLine> lines;
    lines.reserve(static_cast<std::size_t>(macs.size()));
    for (const QString &mac : macs) {
        const ListedDevice device = {.row = store().row(mac), .record = store().record(mac)};
        // It has left the table since it was ticked. The others are worth having without it.
        if (device.row.isEmpty() && !device.record) {
            qCWarning(logDevice) << "CDeviceDH::exportDevice: there is no device" << mac;
            continue;
        }
        lines.push_back(listLineOf(device, listedAccount(device.row)));
    }
    m_exportFaults.clear();
    // A file without a device would tell the user that the export went well.
    if (lines.empty() || !writeDeviceList(localPath(folder) + QLatin1Char('/') + fileName, lines))
        return false;
    for (const UnreadableText &fault : unreadableTexts(fileName, lines))
        m_exportFaults.append(faultMap(lines.at(fault.line), fault));
    return true;
}

QVariantList CDeviceDH::exportFaults()
{
    return m_exportFaults;
}

ImportPlan CDeviceDH::importPlan(const QString &path)
{
    DeviceListContents contents = readDeviceList(localPath(path));
    const QString refusal =
        contents.refusal.isEmpty() ? DeviceListImport::refusalOf(contents.lines) : contents.refusal;
    if (!refusal.isEmpty())
        return {.refusal = refusal, .lines = {}};
    return {.refusal = {},
            .lines = DeviceListImport::plan(std::make_shared<DeviceListImport>(
                RowAdding(store(), m_libraries, p2pPorts()), std::move(contents.lines)))};
}

bool CDeviceDH::importDevice(const QString &path, ImportSummary &summary)
{
    summary = {};
    m_importFailures.clear();
    const ImportPlan plan = importPlan(path);
    m_importError = plan.refusal;
    if (!m_importError.isEmpty())
        return false;
    const int total = static_cast<int>(plan.lines.size());
    for (const ImportLine &line : plan.lines) {
        const StepOutcome outcome = line.step(StepControl());
        ++summary.total;
        if (outcome.result != resultCode(LoginResult::Success)) {
            ++summary.errcount;
            m_importFailures.append(importFailure(line.place, outcome));
        }
        Q_EMIT signalCDeviceImportProgress(summary.total, total);
    }
    // Told together: a page reads the whole table again each time.
    if (summary.errcount < total)
        Q_EMIT signalCDeviceAddSingleDeviceToTable();
    return true;
}

QVariantList CDeviceDH::importFailures()
{
    return m_importFailures;
}

QString CDeviceDH::importError()
{
    return m_importError;
}
