#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/preview.h"
#include "device/batch/upgradebatches.h"
#include "device/batch/upgradepreview.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <QEventLoop>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// The upgrade state in the row of a device, which is more exact than the result of its step.
QVariantList stateOf(const CommandContext &context, const BatchDevice &device)
{
    const QJsonObject row = context.factory.backEnd(dhFamily)->deviceRow(device.identity);
    return {row.value(DeviceRowKey::vision).toString(), row.value(DeviceRowKey::upgradetext).toString()};
}

/// Writes every tenth of the progress of a running upgrade.
class UpgradeProgress
{
public:
    UpgradeProgress(const CommandContext &context, UpgradeBatches &upgrades)
    {
        QObject::connect(&upgrades, &UpgradeBatches::rowsChanged, &m_receiver, [this, &context, &upgrades] {
            constexpr int tenths = 10;
            const int done = upgrades.last() ? static_cast<int>(upgrades.last()->progress() * tenths) : 0;
            if (done <= m_tenths)
                return;
            m_tenths = done;
            context.terminal.writeProgress(u"%1 %"_s.arg(done * tenths));
        });
    }

private:
    QObject m_receiver;
    int m_tenths = 0;
};

int upgradeDevices(CommandContext &context, UpgradeBatches &upgrades)
{
    const QFileInfo file(context.arguments.value("file"_L1));
    if (!file.isFile() || !file.isReadable())
        return context.fail(NothingDone, u"the firmware file %1 cannot be read"_s.arg(file.filePath()));
    if (!context.isDryRun()) {
        if (const int exitCode = setAccount(context); exitCode != AllDone)
            return exitCode;
    }
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    const QString refusal = upgrades.chooseFile(choice.identities(), file.absoluteFilePath());
    if (!refusal.isEmpty())
        context.terminal.writeError(terminalText(refusal));
    if (context.isDryRun()) {
        UpgradePreview preview;
        preview.setDeviceFactory(&context.factory);
        preview.setIdentities(choice.identities());
        return printPreview(context, preview, choice.missing);
    }
    ResultTable results({u"version"_s, u"state"_s});
    const UpgradeProgress progress(context, upgrades);
    const int exitCode = runBatch(
        context, [&] { return upgrades.start(u"upgrade"_s, choice.identities()); }, results,
        [&context](const BatchDevice &device) { return stateOf(context, device); });
    if (exitCode != AllDone)
        return exitCode;
    results.addMissing(choice.missing);
    return results.print(context);
}

/// The devices of a document are reached at the addresses and with the accounts of its lines.
int upgradeDocument(CommandContext &context, UpgradeBatches &upgrades)
{
    const QString path = QFileInfo(context.arguments.value("document"_L1)).absoluteFilePath();
    UpgradePreview preview;
    preview.setDeviceFactory(&context.factory);
    QEventLoop loop;
    QString refusal;
    QObject::connect(&preview, &UpgradePreview::documentRead, &loop, [&](const QString &reason) {
        refusal = reason;
        loop.quit();
    });
    preview.readDocument(path);
    loop.exec();
    if (!refusal.isEmpty())
        return context.fail(NothingDone, refusal);
    if (context.isDryRun())
        return printPreview(context, preview, {});
    QString text;
    QObject::connect(&upgrades, &UpgradeBatches::documentEnded, &loop, [&](const QString &message) {
        text = message;
        loop.quit();
    });
    const UpgradeProgress progress(context, upgrades);
    return runLines(
        context, [&] { return upgrades.startDocument(u"upgrade"_s, path, preview.checkedIdentities()); },
        loop, text);
}

} // namespace

int runUpgrade(CommandContext &context)
{
    if (context.arguments.has("file"_L1) == context.arguments.has("document"_L1))
        return context.fail(UsageError, u"upgrade needs either --file or --document"_s);
    UpgradeBatches upgrades(context.factory, context.batches, context.surroundings.parallelUpgrades);
    return context.arguments.has("document"_L1) ? upgradeDocument(context, upgrades)
                                                : upgradeDevices(context, upgrades);
}

} // namespace commandline
