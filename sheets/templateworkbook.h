// Template workbooks: a sheet to fill in, and a sheet with the explanations of its columns.
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
        QString example; ///< in the row below the titles
        QString meaning;
        double width = 0; ///< in digits
    };
    QString sheet;
    QString explanationSheet;
    QString columnTitle;
    QString meaningTitle;
    QList<Column> columns;
    QStringList remarks;
};

/// Replaces an existing file. False when the file cannot be written.
[[nodiscard]] bool writeTemplateWorkbook(const QString &path, const TemplateWorkbook &content);

/// The file name and the content of a template, in the language of the installed translator.
struct NamedTemplate
{
    QString fileName;
    TemplateWorkbook content;
};

/// The main function of a build tool, "PROGRAM TRANSLATION FOLDER", which writes a template in the language
/// of a translation file. Returns the exit code: 0, 1 for a file that cannot be read or written, 2 for wrong
/// arguments. `makeTemplate` is called when the translator is installed.
[[nodiscard]] int writeTranslatedTemplate(int argc, char *argv[],
                                          const std::function<NamedTemplate()> &makeTemplate);
