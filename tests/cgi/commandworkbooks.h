// Workbooks with HTTP commands for the tests: row 1 has titles, each row below is a line with one command.
#pragma once

#include "sheets/qexcel.h"

#include <QStringList>

/// The titles of the columns that a workbook must have: address, port, user name, password, command.
inline const QStringList commandTitles = {QStringLiteral("IP"), QStringLiteral("端口"),
                                          QStringLiteral("用户名"), QStringLiteral("密码"),
                                          QStringLiteral("CGI配置命令")};

/// Writes a workbook with these rows to the file `path`, starting at row 1. Each row is a list of cells from
/// column 1 on; empty ones are not written. Returns false on failure.
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

/// Writes a workbook with the titles in row 1 and `lines` below, in the order of commandTitles.
inline bool writeCommandWorkbook(const QString &path, const QList<QStringList> &lines)
{
    return writeRows(path, QList<QStringList>{commandTitles} + lines);
}

/// The results (column 7) of the first `lines` lines of a workbook; "none" for a cell that cannot be read. If
/// the file cannot be opened, the only element is the error.
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
