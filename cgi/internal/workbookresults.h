#pragma once

#include "cgi/commandworkbook.h"

#include <QElapsedTimer>

/// Writes the results of an opened workbook's commands to it, and saves it in finish() and about every 30 s
/// before, so that few results are lost in a crash.
class WorkbookResults
{
    Q_DECLARE_TR_FUNCTIONS(WorkbookResults)
public:
    /// `workbook` must outlive this object.
    explicit WorkbookResults(CommandWorkbook &workbook);

    [[nodiscard]] const std::vector<WorkbookCommand> &commands() const { return m_commands; }

    /// Adds the result of a command, once for each. The result of a failed command starts with "Error:".
    void take(const WorkbookCommand &command, const QString &result);

    /// Saves the results. Returns a message for the user; commands without a result were not sent.
    [[nodiscard]] QString finish();

private:
    CommandWorkbook &m_workbook;
    const QString m_path; ///< of the opened workbook
    const std::vector<WorkbookCommand> m_commands;
    std::size_t m_done = 0;
    std::size_t m_failed = 0;
    QElapsedTimer m_sinceKept;
};
