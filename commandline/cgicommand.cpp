#include "cgi/cgibatches.h"
#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/outputfolder.h"
#include "commandline/textfile.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <QEventLoop>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// The operand, or the line on standard input.
QString readCommand(const CommandContext &context, QString &error)
{
    QString command = context.arguments.operands.value(0);
    if (command == "-"_L1) {
        const TextLines input = readTextLines(command);
        error = input.error;
        if (error.isEmpty() && input.lines.size() != 1)
            error = u"standard input has to contain one command"_s;
        command = input.lines.isEmpty() ? QString() : input.lines.constFirst().text;
    }
    if (error.isEmpty() && !command.startsWith(u'/'))
        error = u"a command starts with \"/\""_s;
    return command;
}

/// Responses have several lines: they follow a line with their device.
void printResponses(const CommandContext &context, const Batch &batch,
                    const std::function<QString(const BatchDevice &device)> &responseOf)
{
    for (const Batch::Entry &entry : batch.entries()) {
        const QString &ipport = entry.device.ipport;
        QString text = u"# %1 %2\n"_s.arg(ipport, outcomeWord(entry.outcome.result));
        const QStringList lines = responseOf(entry.device).split(u'\n');
        for (const QString &line : lines)
            text += terminalText(line.endsWith(u'\r') ? line.chopped(1) : line) + u'\n';
        context.terminal.writeResult(text.toUtf8());
    }
}

int sendToDevices(CommandContext &context, CgiBatches &commands)
{
    QString error;
    const QString command = readCommand(context, error);
    if (!error.isEmpty())
        return context.fail(UsageError, error);
    if (!context.isDryRun()) {
        if (const int exitCode = setAccount(context); exitCode != AllDone)
            return exitCode;
    }
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    if (context.isDryRun()) {
        RecordTable plan({u"device"_s, u"mac"_s, u"command"_s});
        for (const QJsonObject &row : choice.rows)
            plan.add({row.value(DeviceRowKey::ipport).toString(), row.value(DeviceRowKey::mac).toString(),
                      command});
        context.print(plan);
        return choice.missing.isEmpty() ? AllDone : SomeFailed;
    }
    const auto responseOf = [&](const BatchDevice &device) {
        const QString result = context.factory.backEnd(dhFamily)
                                   ->deviceRow(device.identity)
                                   .value(DeviceRowKey::result)
                                   .toString();
        return commands.responseOf(device.identity, result);
    };
    ResultTable results({u"response"_s});
    const int exitCode = runBatch(
        context, [&] { return commands.send(u"cgi"_s, choice.identities(), command); }, results,
        [&](const BatchDevice &device) { return QVariantList{responseOf(device)}; });
    if (exitCode != AllDone)
        return exitCode;
    results.addMissing(choice.missing);
    if (context.format != RecordFormat::Table)
        return results.print(context);
    printResponses(context, *context.batches.current(), responseOf);
    for (const QString &name : std::as_const(choice.missing))
        context.terminal.writeError(u"%1 was not found"_s.arg(name));
    return results.exitCode();
}

int printLines(const CommandContext &context, const QVariantList &lines)
{
    RecordTable plan({u"device"_s, u"line"_s, u"command"_s, u"note"_s});
    bool isComplete = true;
    for (const QVariant &value : lines) {
        const QVariantMap line = value.toMap();
        const QString note = line.value(RowKey::hindrance).toString();
        isComplete = isComplete && note.isEmpty();
        plan.add({line.value(DeviceRowKey::ipport).toString(), line.value(RowKey::title).toString(),
                  line.value(RowKey::action).toString(), note});
    }
    context.print(plan);
    return isComplete ? AllDone : SomeFailed;
}

int runWorkbook(CommandContext &context, CgiWorkbooks &workbooks)
{
    const QString path = QFileInfo(context.arguments.value("workbook"_L1)).absoluteFilePath();
    QEventLoop loop;
    QVariantList lines;
    QString text;
    QObject::connect(&workbooks, &CgiWorkbooks::wasRead, &loop, [&](const QVariantList &read) {
        lines = read;
        loop.quit();
    });
    QObject::connect(&workbooks, &CgiWorkbooks::ended, &loop, [&](const QString &message) {
        text = message;
        loop.quit();
    });
    workbooks.read(path);
    loop.exec();
    if (!text.isEmpty())
        return context.fail(NothingDone, text);
    if (context.isDryRun())
        return printLines(context, lines);
    QStringList names;
    for (const QVariant &line : std::as_const(lines))
        names.append(line.toMap().value(DeviceRowKey::name).toString());
    return runLines(
        context, [&] { return workbooks.run(u"cgi"_s, names); }, loop, text);
}

} // namespace

int runCgi(CommandContext &context)
{
    const bool hasWorkbook = context.arguments.has("workbook"_L1);
    if (hasWorkbook != context.arguments.operands.isEmpty())
        return context.fail(UsageError, u"cgi needs either a command or --workbook"_s);
    CgiSurroundings surroundings = context.surroundings.cgi;
    const OutputFolder folder = outputFolder(context);
    if (!folder.error.isEmpty())
        return context.fail(NothingDone, folder.error);
    surroundings.folder = folder.path;
    CgiBatches commands(context.factory, context.batches, surroundings);
    return hasWorkbook ? runWorkbook(context, *commands.workbooks()) : sendToDevices(context, commands);
}

} // namespace commandline
