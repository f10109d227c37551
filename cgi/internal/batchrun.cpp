#include "cgi/internal/batchrun.h"

#include <QDir>

BatchRun::BatchRun(CommandWorkbook &workbook, const CgiProcedure &procedure)
    : m_workbook(workbook), m_procedure(procedure), m_path(workbook.path()), m_commands(workbook.commands())
{
    m_sinceKept.start();
}

QString BatchRun::sendNext()
{
    const WorkbookCommand &command = m_commands[m_next];
    const QString result = command.refusal.isEmpty()
                               ? m_procedure.run(command.url, command.user, command.password, command.ipport)
                               : failedResult + command.refusal;
    if (result.startsWith(failedResult))
        ++m_failed;
    m_workbook.setResult(command.row, result);
    ++m_next;
    // Writing a large workbook takes about a second.
    constexpr qint64 keepInterval = 30000;
    if (hasNext() && m_sinceKept.elapsed() > keepInterval) {
        m_workbook.keepResults();
        m_sinceKept.start();
    }
    return command.command;
}

QString BatchRun::finish()
{
    const bool isKept = m_workbook.keepResults();
    QString text = hasNext() ? tr("已停止执行：成功%1行，失败%2行，未执行%3行。")
                                   .arg(done() - m_failed)
                                   .arg(m_failed)
                                   .arg(total() - done())
                             : tr("执行完成：成功%1行，失败%2行。").arg(done() - m_failed).arg(m_failed);
    text += QLatin1Char('\n');
    if (!isKept)
        return text + tr("执行结果无法保存：%1").arg(m_workbook.errorText());
    const QString path = QDir::toNativeSeparators(m_workbook.path());
    if (m_workbook.path() == m_path)
        return text + tr("执行结果已保存到文件：%1").arg(path);
    return text + tr("原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1").arg(path);
}
