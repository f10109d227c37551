#include "cgi/commandworkbook.h"

#include "cgi/logging.h"
#include "sheets/keptworkbook.h"
#include "sheets/tablecells.h"

#include <QRegularExpression>
#include <QUrl>

namespace {

enum Column
{
    AddressColumn = 1,
    PortColumn,
    UserColumn,
    PasswordColumn,
    CommandColumn,
    SchemeColumn,
    ResultColumn,
};

/// The address of "address:web port"; an IPv6 address before a port is in brackets.
QString withoutPort(const QString &address)
{
    static const QRegularExpression port(QStringLiteral(":\\d+$"));
    const bool isBareIpv6 = address.count(QLatin1Char(':')) > 1 && !address.startsWith(QLatin1Char('['));
    return isBareIpv6 ? address : QString(address).remove(port);
}

/// True if the text has only characters of a host and a port: with other characters, a command and its
/// password could be sent to another host than the one that the row appears to contain.
bool isHost(const QString &address)
{
    static const QRegularExpression host(QStringLiteral("^[0-9A-Za-z.:_\\[\\]-]+$"));
    return host.match(address).hasMatch();
}

} // namespace

CommandWorkbook::CommandWorkbook(std::unique_ptr<sheets::SheetEngine> engine) : m_excel(std::move(engine)) {}

QStringList CommandWorkbook::requiredTitles()
{
    return {tr("IP"), tr("端口"), tr("用户名"), tr("密码"), tr("CGI配置命令")};
}

QString CommandWorkbook::localPath(const QString &path)
{
    const QUrl url(path);
    return url.isLocalFile() ? url.toLocalFile() : path;
}

QString CommandWorkbook::open(const QString &path)
{
    m_path = path;
    if (!m_excel.open(path)) {
        qCWarning(logCgi).noquote() << "cannot open the workbook:" << m_excel.errorText();
        return tr("文件打开失败");
    }
    if (sheets::beginsWithTitles(m_excel, requiredTitles()))
        return {};
    m_excel.quit();
    return tr("文件格式错误");
}

std::vector<WorkbookCommand> CommandWorkbook::commands()
{
    std::vector<WorkbookCommand> found;
    const int lastRow = sheets::lastUsedRow(m_excel);
    for (int row = 2; row <= lastRow; ++row) {
        if (!trimmedText(row, AddressColumn).isEmpty() || !trimmedText(row, CommandColumn).isEmpty())
            found.push_back(command(row));
    }
    return found;
}

WorkbookCommand CommandWorkbook::command(int row)
{
    const QString address = trimmedText(row, AddressColumn);
    const QString port = trimmedText(row, PortColumn);
    const auto portNumber = sheets::wholeNumber(port);
    const bool isPlain = sheets::wholeNumber(text(row, SchemeColumn)).value_or(0) == 0;
    const QString scheme = isPlain ? QStringLiteral("http://") : QStringLiteral("https://");
    WorkbookCommand command;
    command.row = row;
    command.command = trimmedText(row, CommandColumn);
    command.url = scheme + address + command.command;
    command.ipport =
        withoutPort(address) + QLatin1Char(':') + (portNumber ? QString::number(*portNumber) : port);
    command.user = text(row, UserColumn);
    command.password = text(row, PasswordColumn);
    if (command.command.isEmpty())
        command.refusal = tr("请填写CGI命令的具体内容。");
    else if (!command.command.startsWith(QLatin1Char('/')) || !isHost(address))
        command.refusal = tr("URL格式错误。");
    return command;
}

void CommandWorkbook::setResult(int row, const QString &result)
{
    const QString text =
        result.size() > longestResult ? result.left(longestResult) + tr("…（内容过长，已截断）") : result;
    if (!m_excel.setCellText(row, ResultColumn, text))
        qCWarning(logCgi).noquote() << "cannot write the result of row" << row << "-" << m_excel.errorText();
}

bool CommandWorkbook::keepResults()
{
    return keepWorkbook(m_excel, m_path, tr("结果"));
}

QString CommandWorkbook::text(int row, int column)
{
    return m_excel.cellText(row, column).value_or(QString());
}

QString CommandWorkbook::trimmedText(int row, int column)
{
    return sheets::trimmedCellText(m_excel, row, column);
}
