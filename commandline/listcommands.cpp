#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/secrets.h"
#include "device/registry/devicefamily.h"
#include "device/registry/listprotection.h"
#include "device/registry/mapkeys.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace commandline {

int runExport(CommandContext &context)
{
    const QFileInfo file(context.arguments.operands.constFirst());
    const QString suffix = file.suffix().toLower();
    const bool isEncrypted = suffix == encryptedListSuffix;
    if (!isEncrypted && suffix != "csv"_L1 && suffix != "xml"_L1 && suffix != "xlsx"_L1)
        return context.fail(UsageError, u"the file of a device list ends in .csv, .xml, .xlsx or .devlist"_s);
    ListProtection protection = {.leavesOutPasswords = context.arguments.has("without-passwords"_L1)};
    if (isEncrypted) {
        Secret secret = readPassphrase(context.arguments, context.terminal, SecretPurpose::NewSecret);
        if (!secret.error.isEmpty())
            return context.fail(UsageError, secret.error);
        protection.passphrase = std::move(secret.password);
    }
    // Without a password, the list has none: no prompt.
    const bool hasAccount = hasPassword(context.arguments) || context.surroundings.siteAccount;
    if (hasAccount) {
        if (const int exitCode = setAccount(context); exitCode != AllDone)
            return exitCode;
    } else {
        context.factory.setDefaultAccount(dhFamily, context.arguments.value("user"_L1, u"admin"_s), {});
    }
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    const bool isWritten = context.factory.backEnd(dhFamily)->exportProtected(
        file.absolutePath(), choice.identities(), file.fileName(), protection);
    if (!isWritten)
        return context.fail(NothingDone, u"%1 cannot be written"_s.arg(file.filePath()));
    const QVariantList faults = context.factory.exportFaults(dhFamily);
    for (const QVariant &value : faults) {
        const QVariantMap fault = value.toMap();
        context.terminal.writeError(terminalText(u"%1, %2: %3"_s.arg(
            fault.value(ExportFaultKey::address).toString(), fault.value(ExportFaultKey::column).toString(),
            fault.value(ExportFaultKey::reason).toString())));
    }
    const QString remark = protection.leavesOutPasswords || !hasAccount ? QString()
                           : isEncrypted ? u", with their passwords, encrypted"_s
                                         : u", with their passwords in readable form"_s;
    context.terminal.writeProgress(
        u"Wrote %1 devices to %2%3."_s.arg(choice.rows.size()).arg(file.filePath(), remark));
    for (const QString &name : std::as_const(choice.missing))
        context.terminal.writeError(u"%1 was not found"_s.arg(name));
    return choice.missing.isEmpty() && faults.isEmpty() ? AllDone : SomeFailed;
}

int runImport(CommandContext &context)
{
    Batch *batch = nullptr;
    const int exitCode = readDeviceList(context, context.arguments.operands.constFirst(), batch);
    if (!batch)
        return exitCode;
    ResultTable results({u"line"_s});
    results.add(*batch, [](const BatchDevice &line) { return QVariantList{line.name}; });
    return results.print(context);
}

} // namespace commandline
