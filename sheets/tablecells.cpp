#include "sheets/tablecells.h"

#include "sheets/qexcel.h"

#include <cmath>

namespace sheets {

bool beginsWithTitles(QExcel &excel, const QStringList &titles)
{
    for (int column = 1; column <= titles.size(); ++column) {
        if (trimmedCellText(excel, 1, column) != titles.at(column - 1))
            return false;
    }
    return true;
}

int lastUsedRow(QExcel &excel)
{
    return excel.firstUsedRow() + excel.usedRowCount() - 1;
}

QString trimmedCellText(QExcel &excel, int row, int column)
{
    return excel.cellText(row, column).value_or(QString()).trimmed();
}

std::optional<qint64> wholeNumber(const QString &cellText)
{
    constexpr double largest = 1e9;
    bool isNumber = false;
    const double number = cellText.trimmed().toDouble(&isNumber);
    if (!isNumber || !(std::abs(number) <= largest)) // also rejects "nan"
        return std::nullopt;
    return static_cast<qint64>(number);
}

} // namespace sheets
