// Running a batch (work on several devices in the background) to its end, and the table of its results.
#pragma once

#include "commandline/commandcontext.h"

class QEventLoop;

namespace commandline {

/// Waits for the end of a started batch, and writes the result of each device as progress when it is known.
/// Returns immediately if the batch has ended. A batch that is paused after several refused passwords is
/// stopped, since each further attempt counts towards the lock of a device. A batch that the user interrupts
/// (SIGINT, SIGTERM) is stopped as well. Both stops are reported on standard error. Returns false after a
/// stop, true otherwise, also if devices failed. Runs the event loop.
bool awaitBatch(CommandContext &context, Batch &batch);

/// The word for StepOutcome::result: "done" (success), "skipped" (the device is not initialised, or is being
/// upgraded: it got no request), "not done" (the batch ended before) or "failed" (any other result).
[[nodiscard]] QString outcomeWord(int result);

/// The results of devices, one record for each: the columns "device" (address and port; the name in the batch
/// if there is no address), "mac", "name" (name and model), "result" (outcomeWord()), "code"
/// (StepOutcome::result) and "text" (details, or the reason of a failure), and further columns of the command
/// between "name" and "result".
class ResultTable
{
public:
    explicit ResultTable(const QStringList &furtherColumns = {});

    /// Adds the devices of an ended batch with their results. `values` is called for each device and returns
    /// the values of the further columns; without it they are empty.
    void add(const Batch &batch, const std::function<QVariantList(const BatchDevice &device)> &values = {});

    /// Adds the result of one device. `values` are those of the further columns; missing ones are empty.
    void add(const BatchDevice &device, const StepOutcome &outcome, const QVariantList &values = {});

    /// Adds devices that were not found, as failed; `names` are those in the arguments.
    void addMissing(const QStringList &names);

    /// Notes that one of the added batches was stopped (see awaitBatch()).
    void noteStopped() { m_isStopped = true; }
    /// Whether a batch was stopped: the command must not start further work.
    [[nodiscard]] bool isStopped() const { return m_isStopped; }

    /// AllDone if all added results are successes, otherwise SomeFailed: skipped and not done devices count
    /// as failures.
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
/// `values` for the further columns. Returns AllDone at the end of the batch, also if devices failed or the
/// batch was stopped: see ResultTable::exitCode() and isStopped(). If `start` returns null (nothing was
/// started), writes the reason to standard error and returns NothingDone. Prints no results.
[[nodiscard]] int runBatch(CommandContext &context, const std::function<Batch *()> &start, ResultTable &table,
                           const std::function<QVariantList(const BatchDevice &device)> &values = {});

/// Runs a command whose devices are the lines of a workbook, into which the results are written when the
/// batch has ended. `start` starts the batch. The caller has connected a handler to the signal that the
/// workbook was saved (or not): it sets `written` to the message about the file, which is not empty, and
/// quits `loop`. This function runs the batch, waits for that message, writes it as progress, and prints the
/// results with the further column "line" (name of the line in the batch). Returns the exit code of the
/// command: that of runBatch() if nothing was started, otherwise that of ResultTable.
[[nodiscard]] int runLines(CommandContext &context, const std::function<Batch *()> &start, QEventLoop &loop,
                           const QString &written);

} // namespace commandline
