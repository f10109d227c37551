// Template workbooks: a sheet to fill in, and a sheet with the explanations of its columns. Used by tools of
// the build.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

struct TemplateWorkbook
{
    struct Column
    {
        QString title;
        QString example; ///< in the row below the titles; may be empty
        QString meaning;
        double width = 0; ///< of the column in the sheet to fill in, in digits of the default font
    };
    QString sheet;            ///< name of the sheet to fill in
    QString explanationSheet; ///< name of the sheet with the titles and meanings of the columns
    QString columnTitle;      ///< title of the column of titles in that sheet
    QString meaningTitle;     ///< title of its column of meanings
    QList<Column> columns;
    QStringList remarks; ///< rows below the meanings
};

/// Writes a template workbook. An existing file is replaced. False when the file cannot be written; an
/// existing file may then be lost.
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
