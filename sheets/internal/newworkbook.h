#pragma once

#include "sheets/internal/workbook.h"

#include <QList>

#include <map>
#include <vector>

namespace sheets {

/// A workbook with one sheet that was begun here. It is kept as rows, because a cell's look may change until
/// it is written, and is written row by row.
class NewWorkbook : public Workbook
{
public:
    bool selectSheet(int index) override;
    [[nodiscard]] UsedRows usedRows() const override;
    [[nodiscard]] QString cellText(CellPlace place) const override;
    bool setCellText(CellPlace place, const QString &text) override;
    bool mergeCells(const CellRange &range) override;
    bool changeFormat(const CellRange &range, const FormatChange &change) override;
    bool setRowHeight(int row, double points) override;
    bool build(QByteArray &file) override;

    struct Cell
    {
        int column = 0;
        QString text;
        FormatChange format; ///< against the look of an untouched cell
    };

    struct Row
    {
        std::vector<Cell> cells; ///< in the order of their columns
        std::optional<double> height;

        /// The cell of that column, which is added when it is missing.
        Cell &cell(int column);
    };

private:
    bool write(const QString &path, const QString &temporaryFolder);

    std::map<int, Row> m_rows; ///< by row number
    QList<CellRange> m_merged;
};

} // namespace sheets
