#include "device/batch/batchresultsfile.h"

#include "files/filereplacement.h"
#include "sheets/qexcel.h"

#include <QCoreApplication>

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF"); // spreadsheet applications detect UTF-8 by it

QStringList titles()
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("BatchResult", source);
    };
    return {text(QT_TRANSLATE_NOOP("BatchResult", "设备")), QStringLiteral("MAC"),
            text(QT_TRANSLATE_NOOP("BatchResult", "名称")), text(QT_TRANSLATE_NOOP("BatchResult", "步骤")),
            text(QT_TRANSLATE_NOOP("BatchResult", "结果")), text(QT_TRANSLATE_NOOP("BatchResult", "时间"))};
}

QStringList lineOf(const QString &title, const Batch::Entry &entry)
{
    return {entry.device.ipport,        macOf(entry.device),
            entry.device.title,         title,
            outcomeText(entry.outcome), entry.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))};
}

QList<QStringList> linesOf(const QList<BatchRecord> &records)
{
    QList<QStringList> lines = {titles()};
    for (const BatchRecord &record : records) {
        for (const Batch::Entry &entry : record.entries)
            lines.append(lineOf(record.title, entry));
    }
    return lines;
}

/// A quoted field. Names come from devices: a leading formula character is escaped.
QByteArray csvField(const QString &text)
{
    QString field = text;
    if (!field.isEmpty() && QStringView(u"=+-@\t\r").contains(field.front()))
        field.prepend(QLatin1Char('\''));
    return '"' + field.replace(QLatin1Char('"'), QLatin1String("\"\"")).toUtf8() + '"';
}

QByteArray csvLine(const QStringList &fields)
{
    QByteArray line;
    for (const QString &field : fields)
        line += csvField(field) + ',';
    line.chop(1);
    return line + "\r\n";
}

bool writeRow(QExcel &workbook, int row, const QStringList &cells)
{
    int column = 0;
    for (const QString &cell : cells) {
        if (!workbook.setCellText(row, ++column, cell))
            return false;
    }
    return true;
}

QString saveWorkbook(const QList<QStringList> &lines, const QString &path)
{
    QExcel workbook;
    const sheets::CellRange head = {{1, 1}, {1, static_cast<int>(lines.constFirst().size())}};
    bool done = workbook.createWorkbook() && workbook.setBold(head, true);
    int row = 0;
    for (const QStringList &line : lines)
        done = done && writeRow(workbook, ++row, line);
    return done && workbook.saveAs(path) ? QString() : workbook.errorText();
}

} // namespace

QString saveBatchResults(const QList<BatchRecord> &records, const QString &path)
{
    const QList<QStringList> lines = linesOf(records);
    if (!path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        return saveWorkbook(lines, path);
    QByteArray text = byteOrderMark.toByteArray();
    for (const QStringList &line : lines)
        text += csvLine(line);
    return replaceFile(path, text);
}
