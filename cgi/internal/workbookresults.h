#pragma once

#include "cgi/commandworkbook.h"

#include <QElapsedTimer>

/// Writes the results of the commands to the rows of their workbook. Saves the workbook's file in finish(),
/// and in take() if the last save or the construction was more than 30 s ago and further results are to come,
/// so that few results are lost in a crash. Not thread-safe.
class WorkbookResults
{
    Q_DECLARE_TR_FUNCTIONS(WorkbookResults)
public:
    /// Reads the commands of `workbook`, which is open and must outlive this object.
    explicit WorkbookResults(CommandWorkbook &workbook);

    /// The commands of the workbook, as they were at the construction.
    [[nodiscard]] const std::vector<WorkbookCommand> &commands() const { return m_commands; }

    /// Writes the result of a command to its row. Called at most once for each command, in any order. The
    /// result of a failed command starts with "Error:".
    void take(const WorkbookCommand &command, const QString &result);

    /// Saves the results. Returns a message for the user in the user's language: the numbers of succeeded,
    /// failed and not sent commands (those without a result), and the file with the results or the reason why
    /// they cannot be saved. That is another file than the opened one if the latter cannot be written.
    [[nodiscard]] QString finish();

private:
    CommandWorkbook &m_workbook;
    const QString m_path; ///< of the opened workbook
    const std::vector<WorkbookCommand> m_commands;
    std::size_t m_done = 0;
    std::size_t m_failed = 0;
    QElapsedTimer m_sinceKept;
};
