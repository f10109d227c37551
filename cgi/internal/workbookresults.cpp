#include "cgi/internal/workbookresults.h"

#include "cgi/cgiprocedure.h"

#include <QDir>

WorkbookResults::WorkbookResults(CommandWorkbook &workbook)
    : m_workbook(workbook), m_path(workbook.path()), m_commands(workbook.commands())
{
    m_sinceKept.start();
}

void WorkbookResults::take(const WorkbookCommand &command, const QString &result)
{
    ++m_done;
    if (result.startsWith(failedResult))
        ++m_failed;
    m_workbook.setResult(command.row, result);
    // Writing a large workbook takes about a second.
    constexpr qint64 keepInterval = 30000;
    if (m_done < m_commands.size() && m_sinceKept.elapsed() > keepInterval) {
        m_workbook.keepResults();
        m_sinceKept.start();
    }
}

QString WorkbookResults::finish()
{
    const bool isKept = m_workbook.keepResults();
    const std::size_t succeeded = m_done - m_failed;
    QString text = m_done < m_commands.size()
                       ? tr("已停止执行：成功%1行，失败%2行，未执行%3行。")
                             .arg(succeeded)
                             .arg(m_failed)
                             .arg(m_commands.size() - m_done)
                       : tr("执行完成：成功%1行，失败%2行。").arg(succeeded).arg(m_failed);
    text += QLatin1Char('\n');
    if (!isKept)
        return text + tr("执行结果无法保存：%1").arg(m_workbook.errorText());
    const QString path = QDir::toNativeSeparators(m_workbook.path());
    if (m_workbook.path() == m_path)
        return text + tr("执行结果已保存到文件：%1").arg(path);
    return text + tr("原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1").arg(path);
}
