// Device lists: exporting devices to a file, and logging in to those of a file.
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "device/dh/internal/devicelistfile.h"
#include "device/dh/internal/devicelistimport.h"
#include "device/dh/internal/devicelistvalues.h"
#include "device/logging.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScopeGuard>

#include <utility>

namespace {

/// How long the scene may stand still between two devices that answer quickly, in milliseconds.
constexpr qint64 paintInterval = 50;

QVariantMap failureMap(const DeviceListLine &line, const ImportFailure &failure)
{
    return {{QStringLiteral("line"), line.number},
            {QStringLiteral("address"), line[ListColumn::IPAddress].left(maximumListText)},
            {QStringLiteral("code"), resultCode(failure.result)},
            {QStringLiteral("reason"), failure.reason}};
}

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

bool CDeviceDH::exportDevice(const QString &folder, const QStringList &macs, const QString &fileName)
{
    const DeviceAccount usual = {.name = m_defaultAccount, .password = m_defaultPassword};
    std::vector<DeviceListLine> lines;
    lines.reserve(static_cast<std::size_t>(macs.size()));
    for (const QString &mac : macs) {
        const ListedDevice device = {.row = store().row(mac), .record = store().record(mac)};
        // It has left the table since it was ticked. The others are worth having without it.
        if (device.row.isEmpty() && !device.record) {
            qCWarning(logDevice) << "CDeviceDH::exportDevice: there is no device" << mac;
            continue;
        }
        lines.push_back(listLineOf(device, usual));
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

bool CDeviceDH::importDevice(const QString &path, ImportSummary &summary)
{
    summary = {};
    // The scene's timers run between two devices and could call again.
    if (m_isImporting) {
        qCWarning(logDevice) << "CDeviceDH::importDevice: a list is being imported";
        return false;
    }
    m_importFailures.clear();
    const DeviceListContents contents = readDeviceList(localPath(path));
    m_importError =
        contents.refusal.isEmpty() ? DeviceListImport::refusalOf(contents.lines) : contents.refusal;
    if (!m_importError.isEmpty())
        return false;
    importLines(contents.lines, summary);
    return true;
}

void CDeviceDH::importLines(const std::vector<DeviceListLine> &lines, ImportSummary &summary)
{
    m_isImporting = true;
    m_stopsImport = false;
    const auto end = qScopeGuard([this] { m_isImporting = false; });
    const int total = static_cast<int>(lines.size());
    bool hasNewRows = false;
    QElapsedTimer sincePaint; // not started: the first device is shown at once
    DeviceListImport import(store(), m_libraries);
    for (const DeviceListLine &line : lines) {
        if (const std::optional<ImportFailure> failure = import.add(line, p2pPorts())) {
            ++summary.errcount;
            m_importFailures.append(failureMap(line, *failure));
        } else {
            hasNewRows = true;
        }
        ++summary.total;
        Q_EMIT signalCDeviceImportProgress(summary.total, total);
        const bool isLast = summary.total == total;
        if (!isLast && sincePaint.isValid() && sincePaint.elapsed() < paintInterval)
            continue;
        // Told together: the page reads the whole table again each time.
        if (std::exchange(hasNewRows, false))
            Q_EMIT signalCDeviceAddSingleDeviceToTable();
        // The scene has no other chance to paint what has come so far, and the user none to end it; the scene
        // keeps all other input away. What runs here may end the factory and take the ports away, but not
        // this object, which its caller holds.
        if (!isLast)
            QCoreApplication::processEvents();
        if (m_stopsImport) {
            for (std::size_t place = summary.total; place < lines.size(); ++place)
                m_importFailures.append(failureMap(
                    lines[place], {LoginResult::NotDone, resultName(resultCode(LoginResult::NotDone))}));
            summary.errcount += total - summary.total;
            summary.total = total;
            return;
        }
        sincePaint.start();
    }
}

QVariantList CDeviceDH::importFailures()
{
    return m_importFailures;
}

void CDeviceDH::stopImport()
{
    m_stopsImport = true;
}

QString CDeviceDH::importError()
{
    return m_importError;
}
