#include "commandline/batchrun.h"

#include "commandline/interruption.h"
#include "device/models/batchreport.h"

#include <QEventLoop>
#include <QHash>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QStringList resultColumns(const QStringList &furtherColumns)
{
    return QStringList{u"device"_s, u"mac"_s, u"name"_s} + furtherColumns +
           QStringList{u"result"_s, u"code"_s, u"text"_s};
}

/// The address of a device, or its name without one.
QString shownAddress(const BatchDevice &device)
{
    const bool hasAddress = !device.ipport.isEmpty() && !device.ipport.startsWith(u':');
    return hasAddress ? device.ipport : device.name;
}

} // namespace

bool awaitBatch(CommandContext &context, Batch &batch)
{
    QEventLoop loop;
    bool isStopped = false;
    qsizetype done = 0;
    QHash<QString, QString> addresses; // by the names of the devices in the batch
    for (const Batch::Entry &entry : batch.entries())
        addresses.insert(entry.device.name, shownAddress(entry.device));
    QObject::connect(
        &batch, &Batch::resulted, &loop, [&](const QStringList &devices, const QList<int> &results) {
            for (qsizetype index = 0; index < devices.size(); ++index) {
                const QString text = batch.textOf(devices.at(index));
                context.terminal.writeProgress(u"[%1/%2] %3: %4"_s.arg(++done)
                                                   .arg(batch.total())
                                                   .arg(terminalText(addresses.value(devices.at(index))),
                                                        outcomeWord(results.at(index))) +
                                               (text.isEmpty() ? QString() : u" - "_s + terminalText(text)));
            }
        });
    QObject::connect(&batch, &Batch::changed, &loop, [&] {
        if (!batch.isPaused())
            return;
        isStopped = true;
        context.terminal.writeError(
            u"Stopped: %1 devices in a row refused the account."_s.arg(batch.refusalsInARow()));
        batch.stop();
    });
    QObject::connect(&batch, &Batch::finished, &loop, &QEventLoop::quit);
    Interruption interruption([&] {
        context.terminal.writeError(u"Stopping; running steps end at a safe point. A further signal ends "
                                    "the program immediately."_s);
        batch.stop();
    });
    if (batch.isRunning())
        loop.exec();
    return !isStopped && !interruption.isRequested(); // also a signal during the last result
}

QString outcomeWord(int result)
{
    if (result == BatchReport::Succeeded)
        return u"done"_s;
    if (result == BatchReport::NotDone)
        return u"not done"_s;
    return BatchReport::isSkipped(result) ? u"skipped"_s : u"failed"_s;
}

ResultTable::ResultTable(const QStringList &furtherColumns)
    : m_table(resultColumns(furtherColumns)), m_furtherColumns(furtherColumns.size())
{
}

void ResultTable::add(const Batch &batch,
                      const std::function<QVariantList(const BatchDevice &device)> &values)
{
    for (const Batch::Entry &entry : batch.entries())
        add(entry.device, entry.outcome, values ? values(entry.device) : QVariantList());
}

void ResultTable::add(const BatchDevice &device, const StepOutcome &outcome, const QVariantList &values)
{
    QVariantList further = values;
    further.resize(m_furtherColumns);
    const QString text = outcome.text.isEmpty() && outcome.result != BatchReport::Succeeded
                             ? resultName(outcome.result)
                             : outcome.text;
    m_table.add(QVariantList{shownAddress(device), macOf(device), device.title} + further +
                QVariantList{outcomeWord(outcome.result), outcome.result, text});
    m_hasFailures = m_hasFailures || outcome.result != BatchReport::Succeeded;
}

void ResultTable::addMissing(const QStringList &names)
{
    for (const QString &name : names)
        add({.name = name, .identity = name, .ipport = name, .title = {}},
            {.result = resultCode(LoginResult::NetworkFailure), .text = u"not found"_s});
}

int ResultTable::print(const CommandContext &context) const
{
    context.print(m_table);
    return exitCode();
}

int runBatch(CommandContext &context, const std::function<Batch *()> &start, ResultTable &table,
             const std::function<QVariantList(const BatchDevice &device)> &values)
{
    QString refusal = u"There is no device to work on."_s;
    const QMetaObject::Connection connection =
        QObject::connect(&context.batches, &Batches::refused, &context.batches,
                         [&refusal](const QString &message) { refusal = message; });
    Batch *batch = start();
    QObject::disconnect(connection);
    if (!batch)
        return context.fail(NothingDone, refusal);
    if (!awaitBatch(context, *batch))
        table.noteStopped();
    table.add(*batch, values);
    return AllDone;
}

int runLines(CommandContext &context, const std::function<Batch *()> &start, QEventLoop &loop,
             const QString &written)
{
    ResultTable results({u"line"_s});
    const int exitCode =
        runBatch(context, start, results, [](const BatchDevice &line) { return QVariantList{line.name}; });
    if (exitCode != AllDone)
        return exitCode;
    if (written.isEmpty())
        loop.exec();
    context.terminal.writeProgress(written);
    return results.print(context);
}

} // namespace commandline
