#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

class NewWorkbook;
class Workbook;

/// The SheetEngine that works on the file format itself, without a spreadsheet application. The file of a
/// workbook is an archive of parts, such as one part for each sheet. When a workbook from a file is saved,
/// only the changed parts are written again; all other parts stay identical, byte for byte. A failed save
/// leaves the file unchanged.
///
/// A new workbook that is filled row by row, in ascending order, takes constant memory. saveAs() then takes
/// the memory of the file's bytes. The first other operation, such as reading a cell, writing to an earlier
/// row, or any change after saveAs(), loads the workbook like one from a file. save() fails for a new
/// workbook until saveAs() has succeeded.
///
/// open() fails for a file of more than 128 MiB or more than 10,000 parts, or with a compression
/// ratio that only damaged or hostile files have. An operation fails if a part that it reads has more than
/// 192 MiB of text, or would take more than 1 GiB of memory as a document.
///
/// An object may be used on any thread, by one thread at a time.
class FileSheetEngine : public SheetEngine
{
public:
    FileSheetEngine();
    ~FileSheetEngine() override;

    // The operations are those of SheetEngine, with the differences stated here.

    bool createWorkbook() override;
    bool open(const QString &path) override;
    bool selectSheet(int index) override;
    /// Cells with a format only do not count as used. Both numbers are 0 for an empty sheet.
    [[nodiscard]] std::optional<UsedRows> usedRows() override;
    [[nodiscard]] std::optional<QString> cellText(CellPosition position) override;
    /// Fails for the cell with the definition of a formula that other cells share.
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
