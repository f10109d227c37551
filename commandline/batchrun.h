// Batches of commands.
#pragma once

#include "commandline/commandcontext.h"

class QEventLoop;

namespace commandline {

/// Waits for the end of a batch, and writes the result of each device as progress when it is known. Returns
/// at once if the batch has ended. A batch that is paused after several refused passwords is stopped, since
/// each further attempt counts towards the lock of a device. A batch that the user interrupts is stopped as
/// well. Both stops are reported on standard error. Returns false after a stop. Runs the event loop.
bool awaitBatch(CommandContext &context, Batch &batch);

/// The word for the result of a StepOutcome: "done", "failed", "skipped" or "not done".
[[nodiscard]] QString outcomeWord(int result);

/// The results of devices: the columns "device" (address and port), "mac", "name", "result" (outcomeWord()),
/// "code" and "text", and further ones between "name" and "result".
class ResultTable
{
public:
    explicit ResultTable(const QStringList &furtherColumns = {});

    /// Adds the devices of an ended batch with their results. `values` returns the values of the further
    /// columns; without it they are empty.
    void add(const Batch &batch, const std::function<QVariantList(const BatchDevice &device)> &values = {});

    /// Adds the result of one device. `values` are those of the further columns; missing ones are empty.
    void add(const BatchDevice &device, const StepOutcome &outcome, const QVariantList &values = {});

    /// Adds names of devices that were not found, as failed.
    void addMissing(const QStringList &names);

    /// One of the added batches was stopped: the command must not start further work.
    void noteStopped() { m_isStopped = true; }
    [[nodiscard]] bool isStopped() const { return m_isStopped; }

    /// SomeFailed unless all added results are successes: skipped and not done devices count as failures.
    [[nodiscard]] int exitCode() const { return m_hasFailures ? SomeFailed : AllDone; }

    /// Writes the table to standard output and returns exitCode().
    [[nodiscard]] int print(const CommandContext &context) const;

private:
    RecordTable m_table;
    const qsizetype m_furtherColumns;
    bool m_hasFailures = false;
    bool m_isStopped = false;
};

/// Starts a batch with `start`, waits for its end with awaitBatch() and adds its results to `table`, with
/// `values` for the further columns. Returns AllDone at the end of the batch, also if devices failed: see
/// ResultTable::exitCode(). If `start` returns null, writes the reason to standard error and returns
/// NothingDone.
[[nodiscard]] int runBatch(CommandContext &context, const std::function<Batch *()> &start, ResultTable &table,
                           const std::function<QVariantList(const BatchDevice &device)> &values = {});

/// runBatch() for the lines of a file that the batch writes its results to, then writes the table with the
/// column "line". The message about the file is stored in `written` by the caller's handler, which also quits
/// `loop`: it is awaited and written as progress. Returns the exit code of the command.
[[nodiscard]] int runLines(CommandContext &context, const std::function<Batch *()> &start, QEventLoop &loop,
                           const QString &written);

} // namespace commandline
