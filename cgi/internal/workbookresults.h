#pragma once

#include "cgi/commandworkbook.h"

#include <QElapsedTimer>

/// Writes the results of an opened workbook's commands into it, and keeps them: at times on the way, so that
/// little is lost whatever happens, and at the end.
class WorkbookResults
{
    Q_DECLARE_TR_FUNCTIONS(WorkbookResults)
public:
    explicit WorkbookResults(CommandWorkbook &workbook);

    [[nodiscard]] const std::vector<WorkbookCommand> &commands() const { return m_commands; }

    /// Of one of the commands, each once. One that has failed begins with "Error:".
    void take(const WorkbookCommand &command, const QString &result);

    /// Keeps the results. What is to be told to the user; commands that have no result were not sent.
    [[nodiscard]] QString finish();

private:
    CommandWorkbook &m_workbook;
    const QString m_path; ///< of the workbook that was opened
    const std::vector<WorkbookCommand> m_commands;
    std::size_t m_done = 0;
    std::size_t m_failed = 0;
    QElapsedTimer m_sinceKept;
};
