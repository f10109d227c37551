#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

class Workbook;

/// Works on the file format itself, with no other program: a new workbook is kept as rows and written in one
/// go; one from a file is changed in place, and all parts of the file that are not concerned stay byte for
/// byte.
///
/// What it opens is bounded: 128 MiB of file, 10,000 parts, 192 MiB of text and 1 GiB of memory for one
/// part.
class FileSheetEngine : public SheetEngine
{
public:
    FileSheetEngine();
    ~FileSheetEngine() override;

    bool createWorkbook() override;
    bool open(const QString &path) override;
    bool selectSheet(int index) override;
    [[nodiscard]] std::optional<UsedRows> usedRows() override;
    [[nodiscard]] std::optional<QString> cellText(CellPlace place) override;
    bool setCellText(CellPlace place, const QString &text) override;
    bool mergeCells(const CellRange &range) override;

    /// As declared; refuses a range of more than 100,000 cells.
    bool changeFormat(const CellRange &range, const FormatChange &change) override;
    bool setRowHeight(int row, double points) override;
    bool save() override;
    bool saveAs(const QString &path) override;
    void quit() override;

private:
    bool load(const QByteArray &bytes, const QString &failure);
    bool ended(bool done);

    std::unique_ptr<Workbook> m_workbook;
    QString m_path; ///< where the workbook was opened from or last saved to
};

} // namespace sheets
