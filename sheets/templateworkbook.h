// Workbooks that users begin from: a sheet to fill in, and one that says what its columns mean.
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

/// False when the file cannot be written.
[[nodiscard]] bool writeTemplateWorkbook(const QString &path, const TemplateWorkbook &content);

/// What a template is called and holds, in the language of the translator that is installed.
struct NamedTemplate
{
    QString fileName;
    TemplateWorkbook content;
};

/// The main function of a program of the build, "PROGRAM TRANSLATION FOLDER", which writes a template in the
/// language of a translation file. Returns the exit code.
[[nodiscard]] int writeTranslatedTemplate(int argc, char *argv[],
                                          const std::function<NamedTemplate()> &makeTemplate);
