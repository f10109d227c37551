#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

class NewWorkbook;
class Workbook;

/// Works on the file format itself, without a spreadsheet application. A workbook from a file is changed in
/// place: all other parts of the file stay identical, byte for byte.
///
/// A new workbook that is filled row by row, in ascending order, takes constant memory. saveAs() then takes
/// the memory of the file's bytes. The first other operation, such as reading a cell, writing to an earlier
/// row, or any change after saveAs(), loads the workbook like one from a file. save() fails for a new
/// workbook until saveAs() has succeeded.
///
/// A file that exceeds a limit cannot be opened: 128 MiB and 10,000 parts for the file, 192 MiB of text and
/// 1 GiB of memory as a document for one part.
class FileSheetEngine : public SheetEngine
{
public:
    FileSheetEngine();
    ~FileSheetEngine() override;

    bool createWorkbook() override;
    bool open(const QString &path) override;
    bool selectSheet(int index) override;
    [[nodiscard]] std::optional<UsedRows> usedRows() override;
    [[nodiscard]] std::optional<QString> cellText(CellPosition position) override;
    bool setCellText(CellPosition position, const QString &text) override;
    bool mergeCells(const CellRange &range) override;

    /// Fails for a range of more than 100,000 cells.
    bool changeFormat(const CellRange &range, const FormatChange &change) override;
    bool setRowHeight(int row, double points) override;
    bool save() override;
    bool saveAs(const QString &path) override;
    void quit() override;

private:
    bool load(const QByteArray &bytes, const QString &failure);
    [[nodiscard]] bool isNewRow(const CellRange &range) const;
    bool needWorkbook();
    bool ended(bool done);

    // At most one of them is not null: m_newWorkbook while rows are written in ascending order.
    std::unique_ptr<NewWorkbook> m_newWorkbook;
    std::unique_ptr<Workbook> m_workbook;
    QString m_path; ///< file that the workbook was opened from or last saved to; empty for a new one
};

} // namespace sheets
