#include "device/dh/lists/devicelists.h"

#include "device/dh/lists/devicelistfile.h"
#include "device/dh/lists/devicelistimport.h"
#include "device/dh/lists/devicelistvalues.h"
#include "device/dh/logins/devicelogins.h"
#include "device/registry/localpath.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"

#include <QCoreApplication>

#include <utility>

namespace {

/// A character with its code point, since it may be invisible.
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
    return {{ExportFaultKey::address, line[ListColumn::IPAddress].left(maximumListText)},
            {ExportFaultKey::name, line[ListColumn::DeviceName].left(maximumListText)},
            {ExportFaultKey::column, QStringLiteral("%1 (%2)").arg(name.header, name.element)},
            {ExportFaultKey::reason,
             line[fault.column].isEmpty() ? QCoreApplication::translate("DeviceList", "设备地址无效")
             : fault.character.isEmpty()
                 ? QCoreApplication::translate("DeviceList", "字段过长")
                 : QCoreApplication::translate("DeviceList", "字符 %1 在此格式中无法读回")
                       .arg(namedCharacter(fault.character))}};
}

/// Passwords of stored accounts are not exported.
DeviceAccount listedAccount(const AccountChoice &accounts, const QJsonObject &row)
{
    AccountChoice::Chosen chosen = accounts.of(row);
    if (chosen.source == AccountChoice::Source::Stored)
        chosen.account.password.clear();
    return chosen.account;
}

} // namespace

DeviceLists::DeviceLists(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                         const DeviceLogins &logins, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_signals(backEndSignals)
{
}

bool DeviceLists::exportDevices(const QString &folder, const QStringList &macs, const QString &fileName,
                                const ListProtection &protection)
{
    std::vector<DeviceListLine> lines;
    lines.reserve(static_cast<std::size_t>(macs.size()));
    for (const QString &mac : macs) {
        const ListedDevice device = {.row = m_store->row(mac), .record = m_store->record(mac)};
        // The device was removed from the list since it was checked. The others are exported.
        if (device.row.isEmpty() && !device.record) {
            qCWarning(logDevice) << "DeviceLists::exportDevices: there is no device" << mac;
            continue;
        }
        lines.push_back(listLineOf(device, listedAccount(m_logins.accounts(), device.row)));
        if (protection.leavesOutPasswords)
            lines.back()[ListColumn::Password].clear();
    }
    m_exportFaults.clear();
    // No device left: a file without devices would look like a successful export.
    if (lines.empty() ||
        !writeDeviceList(localPath(folder) + QLatin1Char('/') + fileName, lines, protection.passphrase))
        return false;
    for (const UnreadableText &fault : unreadableTexts(fileName, lines))
        m_exportFaults.append(faultMap(lines.at(fault.line), fault));
    return true;
}

ImportPlan DeviceLists::importPlan(const QString &path, const QString &passphrase,
                                   const std::shared_ptr<P2PPorts> &ports) const
{
    DeviceListContents contents = readDeviceList(localPath(path), passphrase);
    const QString refusal =
        contents.refusal.isEmpty() ? DeviceListImport::refusalOf(contents.lines) : contents.refusal;
    if (!refusal.isEmpty())
        return {.refusal = refusal, .lines = {}, .isPassphraseRefused = contents.isPassphraseRefused};
    return {.refusal = {},
            .lines = DeviceListImport::plan(std::make_shared<DeviceListImport>(
                RowAdding(*m_store, m_libraries, ports), std::move(contents.lines)))};
}

QString DeviceLists::importDevices(const QString &path, const std::shared_ptr<P2PPorts> &ports,
                                   ImportSummary &summary)
{
    summary = {};
    m_importFailures.clear();
    const ImportPlan plan = importPlan(path, {}, ports);
    if (!plan.refusal.isEmpty())
        return plan.refusal;
    const int total = static_cast<int>(plan.lines.size());
    for (const ImportLine &line : plan.lines) {
        const StepOutcome outcome = line.step(StepControl());
        ++summary.total;
        if (outcome.result != resultCode(LoginResult::Success)) {
            ++summary.errcount;
            m_importFailures.append(importFailure(line.position, outcome));
        }
        m_signals.emitNow<&CDeviceBase::signalCDeviceImportProgress>(summary.total, total);
    }
    // One signal for all: pages read the complete list on each.
    if (summary.errcount < total)
        m_signals.emitNow<&CDeviceBase::signalCDeviceAddSingleDeviceToTable>();
    return {};
}
