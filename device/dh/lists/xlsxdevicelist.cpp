#include "device/dh/lists/xlsxdevicelist.h"

#include "device/dh/lists/devicelisttable.h"
#include "device/store/logging.h"
#include "sheets/qexcel.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr int instructionRow = 1;
constexpr int headerRow = 2;
constexpr double instructionHeight = 165; // eleven lines of the default font, in points

/// Instructions for users who edit the list before importing it to a management platform. Chinese in every
/// language, like the headers that they refer to.
QString instructions()
{
    return QStringLiteral("1、带“*”必须填写；\n"
                          "2、设备分类和设备类型必须符合对应关系表；\n"
                          "3、ONVIF协议只支持以IP地址方式接入；\n"
                          "4、主动注册和P2P方式不需要填写设备端口；\n"
                          "5、设备名称为空时，以设备的地址作为名称；\n"
                          "6、General协议的默认端口为37777，ONVIF协议的默认端口为80；\n"
                          "7、组织为空时，设备添加到默认站点；\n"
                          "8、启用双机热备时，服务IP需要填写虚拟IP；\n"
                          "9、导入完成后，请删除文件中的用户名和密码；\n"
                          "10、导入之前，请清除文件中的示例行。");
}

bool writeRows(QExcel &workbook, const std::vector<DeviceListLine> &lines)
{
    int row = headerRow;
    for (const DeviceListLine &line : lines) {
        ++row;
        int column = 0;
        for (const QString &value : line.values) {
            if (!workbook.setCellText(row, ++column, value))
                return false;
        }
    }
    return true;
}

bool writeHead(QExcel &workbook)
{
    const sheets::CellRange instructionCells = {{instructionRow, 1}, {instructionRow, listColumnCount}};
    const sheets::CellRange headerCells = {{headerRow, 1}, {headerRow, listColumnCount}};
    bool done = workbook.setCellText(instructionRow, 1, instructions()) &&
                workbook.mergeCells(instructionCells) && workbook.setWrapText(instructionCells, true) &&
                workbook.setRowHeight(instructionRow, instructionHeight);
    int column = 0;
    for (const ListColumnName &name : listColumnNames())
        done = done && workbook.setCellText(headerRow, ++column, name.header.toString());
    return done && workbook.setBold(headerCells, true);
}

} // namespace

bool writeXlsx(const QString &path, const std::vector<DeviceListLine> &lines)
{
    QExcel workbook; // logs its errors
    return workbook.createWorkbook() && writeHead(workbook) && writeRows(workbook, lines) &&
           workbook.saveAs(path);
}

DeviceListContents readXlsx(const QString &path)
{
    DeviceListContents contents;
    QExcel workbook;
    const QString unreadable = QCoreApplication::translate("DeviceList", "无法读取工作簿");
    if (!workbook.open(path)) {
        qCWarning(logDevice).noquote() << "Failed to open file:" << path;
        contents.refuse(unreadable);
        return contents;
    }
    const int first = workbook.firstUsedRow();
    const int count = workbook.usedRowCount();
    // A stray cell far down makes the used range very long: refused instead of read.
    constexpr int maximumRows =
        static_cast<int>(DeviceListContents::maximumLines) + DeviceListTable::maximumRowsAbove;
    if (count > maximumRows) {
        contents.refuse(QCoreApplication::translate("DeviceList", "表格超过 %1 行").arg(maximumRows));
        return contents;
    }
    DeviceListTable table(contents);
    std::array<QString, DeviceListTable::maximumColumns> texts;
    for (int row = first; row < first + count; ++row) {
        const qsizetype width = table.width() > 0 ? table.width() : DeviceListTable::maximumColumns;
        QList<QStringView> cells(width);
        for (qsizetype index = 0; index < width; ++index) {
            if (!table.isRead(index))
                continue; // a sheet may have a million rows
            const std::optional<QString> text = workbook.cellText(row, static_cast<int>(index) + 1);
            if (!text) {
                contents.refuse(unreadable);
                return contents;
            }
            texts.at(static_cast<std::size_t>(index)) = *text;
            cells[index] = texts.at(static_cast<std::size_t>(index));
        }
        if (!table.addRow(row, cells))
            return contents;
    }
    table.end();
    return contents;
}
