// Workbooks of commands for the tests.
#pragma once

#include "sheets/qexcel.h"

#include <QStringList>

inline const QStringList commandTitles = {QStringLiteral("IP"), QStringLiteral("端口"),
                                          QStringLiteral("用户名"), QStringLiteral("密码"),
                                          QStringLiteral("CGI配置命令")};

/// Writes rows, starting at the first one; empty cells are omitted.
inline bool writeRows(const QString &path, const QList<QStringList> &rows)
{
    QExcel excel;
    bool isWritten = excel.createWorkbook();
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows.at(row).size(); ++column) {
            if (!rows.at(row).at(column).isEmpty())
                isWritten = isWritten && excel.setCellText(row + 1, column + 1, rows.at(row).at(column));
        }
    }
    return isWritten && excel.saveAs(path);
}

/// The same below the titles.
inline bool writeCommandWorkbook(const QString &path, const QList<QStringList> &lines)
{
    return writeRows(path, QList<QStringList>{commandTitles} + lines);
}

/// The results of the first lines.
inline QStringList commandResults(const QString &path, int lines)
{
    constexpr int resultColumn = 7;
    QExcel excel;
    QStringList texts;
    if (!excel.open(path))
        return {excel.errorText()};
    for (int row = 2; row < lines + 2; ++row)
        texts.append(excel.cellText(row, resultColumn).value_or(QStringLiteral("none")));
    return texts;
}
