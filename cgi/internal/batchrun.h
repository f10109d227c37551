#pragma once

#include "cgi/cgiprocedure.h"
#include "cgi/commandworkbook.h"

#include <QElapsedTimer>

/// Sends the commands of an opened workbook one after another, and keeps the results in it: at times on the
/// way, so that little is lost whatever happens, and at the end.
class BatchRun
{
    Q_DECLARE_TR_FUNCTIONS(BatchRun)
public:
    BatchRun(CommandWorkbook &workbook, const CgiProcedure &procedure);

    [[nodiscard]] bool hasNext() const { return m_next < m_commands.size(); }
    [[nodiscard]] int done() const { return static_cast<int>(m_next); }
    [[nodiscard]] int total() const { return static_cast<int>(m_commands.size()); }

    /// Sends the next command, and returns it.
    QString sendNext();

    /// Keeps the results. What is to be told to the user.
    [[nodiscard]] QString finish();

private:
    CommandWorkbook &m_workbook;
    const CgiProcedure &m_procedure;
    const QString m_path; ///< of the workbook that was opened
    const std::vector<WorkbookCommand> m_commands;
    std::size_t m_next = 0;
    int m_failed = 0;
    QElapsedTimer m_sinceKept;
};
