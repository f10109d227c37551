#include "device/dh/lists/xlsxdevicelist.h"
#include "fuzz/input.h"
#include "fuzz/lists.h"
#include "sheets/filesheetengine.h"
#include "sheets/internal/sharedstrings.h"
#include "sheets/internal/worksheet.h"
#include "sheets/qexcel.h"

#include <algorithm>
#include <memory>

namespace {

constexpr int rows = 40;
constexpr int columns = 20;

/// Reads and changes a complete file.
void useFile(const QByteArray &bytes)
{
    const fuzz::InputFile file(QStringLiteral("a.xlsx"), bytes);
    fuzz::useList(readXlsx(file.path()));

    QExcel workbook(std::make_unique<sheets::FileSheetEngine>());
    if (!workbook.open(file.path()))
        return;
    for (int sheet = 1; sheet <= 3 && workbook.selectSheet(sheet); ++sheet) {
        const int row = std::max(1, workbook.firstUsedRow());
        workbook.setCellText(row, 1, QStringLiteral("changed"));
        workbook.mergeCells({{row, 1}, {row + 1, 3}});
        workbook.setBold({{row, 1}, {row, 3}}, true);
    }
    if (workbook.save() && !workbook.open(file.path()))
        qFatal("the saved file cannot be opened");
}

/// Reads and changes the unpacked parts of a file: a sheet and, after a null byte, the shared strings. A
/// fuzzer would hardly generate a valid archive.
void useParts(const QByteArray &bytes)
{
    sheets::Worksheet sheet;
    sheets::SharedStrings strings;
    const qsizetype end = bytes.indexOf('\0');
    if (end >= 0 && !strings.load(bytes.mid(end + 1)))
        return;
    if (!sheet.load(end < 0 ? bytes : bytes.left(end)))
        return;
    const int first = std::clamp(sheet.usedRows().first, 1, sheets::maximumRows - rows);
    for (int row = first; row < first + rows; ++row) {
        for (int column = 1; column <= columns; ++column)
            static_cast<void>(sheet.cellText({row, column}, strings));
    }
    sheet.mergeCells({{first, 1}, {first, 3}});
    sheet.setRowHeight(first + 1, 20);
    sheets::Worksheet again;
    if (!again.load(sheet.bytes()))
        qFatal("the changed sheet cannot be read");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const QByteArray bytes = fuzz::bytesOf(data, size);
    if (bytes.startsWith("PK"))
        useFile(bytes);
    else
        useParts(bytes);
    return 0;
}
