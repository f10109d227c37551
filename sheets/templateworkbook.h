// Template workbooks, which users fill in: a sheet with titles, and a sheet with the explanations of its
// columns. Used by tools of the build.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// The content of a template workbook, in one language.
struct TemplateWorkbook
{
    /// A column of the sheet to fill in.
    struct Column
    {
        QString title;    ///< in row 1
        QString example;  ///< in row 2; may be empty
        QString meaning;  ///< explanation in the other sheet
        double width = 0; ///< of the column in the sheet to fill in, in digits of the default font
    };
    QString sheet;            ///< name of the sheet to fill in
    QString explanationSheet; ///< name of the sheet with the titles and meanings of the columns
    QString columnTitle;      ///< heading of the first column of that sheet, which has the titles
    QString meaningTitle;     ///< heading of its second column, which has the meanings
    QList<Column> columns;    ///< from left to right
    QStringList remarks;      ///< texts below the meanings, one row each
};

/// Writes a template workbook as ".xlsx". An existing file is replaced. False when the file cannot be
/// written; an existing file may then be lost.
[[nodiscard]] bool writeTemplateWorkbook(const QString &path, const TemplateWorkbook &content);

/// The file name and the content of a template, in the language of the installed translator.
struct NamedTemplate
{
    QString fileName;
    TemplateWorkbook content;
};

/// The main function of a build tool, "PROGRAM TRANSLATION FOLDER": writes a template into the folder FOLDER,
/// which is created if missing, in the language of the translation file TRANSLATION. `makeTemplate` is called
/// when the translator is installed. Returns the exit code: 0, 1 for a file that cannot be read or written, 2
/// for a wrong number of arguments. The reason of a failure is printed to the standard error.
[[nodiscard]] int writeTranslatedTemplate(int argc, char *argv[],
                                          const std::function<NamedTemplate()> &makeTemplate);
