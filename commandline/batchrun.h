// Batches of commands.
#pragma once

#include "commandline/commandcontext.h"

namespace commandline {

/// Waits for the end of a batch and writes the result of each device as progress. A batch that is paused
/// after several refused passwords is stopped: each further attempt counts towards the lock of a device. So
/// is one that the user interrupts. Runs the event loop.
void awaitBatch(CommandContext &context, Batch &batch);

/// "done", "failed", "skipped" or "not done".
[[nodiscard]] QString outcomeWord(int result);

/// The results of devices: the columns "device", "mac", "name", "result", "code" and "text", and further ones
/// between "name" and "result".
class ResultTable
{
public:
    explicit ResultTable(const QStringList &furtherColumns = {});

    /// Adds the devices of a batch. `values` returns the values of the further columns.
    void add(const Batch &batch, const std::function<QVariantList(const BatchDevice &device)> &values = {});

    /// Adds the result of one device.
    void add(const BatchDevice &device, const StepOutcome &outcome, const QVariantList &values = {});

    /// Adds names without a device.
    void addMissing(const QStringList &names);

    /// SomeFailed unless all results are successes.
    [[nodiscard]] int exitCode() const { return m_hasFailures ? SomeFailed : AllDone; }

    /// Writes the table and returns exitCode().
    [[nodiscard]] int print(const CommandContext &context) const;

private:
    RecordTable m_table;
    const qsizetype m_furtherColumns;
    bool m_hasFailures = false;
};

/// Starts a batch with `start`, waits for its end and adds its results to `table`. Returns AllDone, or writes
/// why the batch does not start and returns NothingDone.
[[nodiscard]] int runBatch(CommandContext &context, const std::function<Batch *()> &start, ResultTable &table,
                           const std::function<QVariantList(const BatchDevice &device)> &values = {});

} // namespace commandline
