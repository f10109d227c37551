#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/preview.h"
#include "commandline/secrets.h"
#include "device/batch/initialisationpreview.h"
#include "device/forms/systemtools.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// Why a device would refuse the password of its first account; empty if it would not.
QString passwordFault(const QString &password)
{
    switch (SystemTools().newPasswordFault(password, password)) {
    case SystemTools::NoFault:
        return {};
    case SystemTools::LengthOutOfRange:
        return u"the password of a device has 8 to 32 characters"_s;
    default:
        return u"the password of a device needs at least two kinds of characters: digits, capital letters, "
               "small letters, others"_s;
    }
}

} // namespace

int runInit(CommandContext &context)
{
    QString password;
    if (!context.isDryRun()) {
        const Secret secret = readPassword(context.arguments, context.terminal, SecretPurpose::NewSecret);
        const QString fault = secret.error.isEmpty() ? passwordFault(secret.password) : secret.error;
        if (!fault.isEmpty())
            return context.fail(UsageError, fault);
        password = secret.password;
    }
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    if (context.arguments.value("devices"_L1) == "all"_L1) {
        choice.rows.removeIf([](const QJsonObject &row) { return row.value(DeviceRowKey::state).toBool(); });
        if (choice.rows.isEmpty()) {
            context.terminal.writeProgress(u"All devices are initialised."_s);
            return ResultTable().print(context);
        }
    }
    InitialisationPreview preview;
    preview.setDeviceFactory(&context.factory);
    preview.setAction(context.arguments.value("user"_L1, u"admin"_s));
    preview.setTicked(previewRows(choice));
    if (context.isDryRun())
        return printPreview(context, preview, choice.missing);
    ResultTable results;
    const QStringList identities = preview.identities();
    if (!identities.isEmpty()) {
        const int exitCode = runBatch(
            context,
            [&] {
                return context.batches.initialiseDevices(dhFamily, u"init"_s, identities,
                                                         context.arguments.value("user"_L1, u"admin"_s),
                                                         password);
            },
            results);
        if (exitCode != AllDone)
            return exitCode;
    }
    addSkipped(preview, results);
    results.addMissing(choice.missing);
    return results.print(context);
}

} // namespace commandline
