#include "sheets/templateworkbook.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTranslator>

#include <xlsxwriter.h>

namespace {

class TemplateWriter
{
public:
    TemplateWriter(const QString &path, const TemplateWorkbook &content)
        : m_content(content), m_path(QFile::encodeName(path)), m_workbook(workbook_new(m_path.constData()))
    {
        m_bold = workbook_add_format(m_workbook);
        format_set_bold(m_bold);
        m_text = workbook_add_format(m_workbook);
        format_set_num_format(m_text, "@");
        m_wrapped = workbook_add_format(m_workbook);
        format_set_text_wrap(m_wrapped);
        format_set_align(m_wrapped, LXW_ALIGN_VERTICAL_TOP);
    }

    /// False when the file cannot be written.
    [[nodiscard]] bool write()
    {
        writeSheet();
        writeExplanations();
        return workbook_close(m_workbook) == LXW_NO_ERROR;
    }

private:
    lxw_worksheet *addSheet(const QString &name)
    {
        return workbook_add_worksheet(m_workbook, name.toUtf8().constData());
    }

    static void writeText(lxw_worksheet *sheet, int row, int column, const QString &text, lxw_format *format)
    {
        worksheet_write_string(sheet, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column),
                               text.toUtf8().constData(), format);
    }

    void writeSheet()
    {
        lxw_worksheet *sheet = addSheet(m_content.sheet);
        for (int column = 0; column < m_content.columns.size(); ++column) {
            const TemplateWorkbook::Column &content = m_content.columns.at(column);
            const auto index = static_cast<lxw_col_t>(column);
            worksheet_set_column(sheet, index, index, content.width, m_text);
            writeText(sheet, 0, column, content.title, m_bold);
            if (!content.example.isEmpty())
                writeText(sheet, 1, column, content.example, m_text);
        }
        worksheet_freeze_panes(sheet, 1, 0);
    }

    void writeExplanations()
    {
        constexpr double titleWidth = 20;
        constexpr double meaningWidth = 80;
        lxw_worksheet *sheet = addSheet(m_content.explanationSheet);
        worksheet_set_column(sheet, 0, 0, titleWidth, nullptr);
        worksheet_set_column(sheet, 1, 1, meaningWidth, nullptr);
        writeText(sheet, 0, 0, m_content.columnTitle, m_bold);
        writeText(sheet, 0, 1, m_content.meaningTitle, m_bold);
        int row = 1;
        for (const TemplateWorkbook::Column &column : m_content.columns) {
            writeText(sheet, row, 0, column.title, m_wrapped);
            writeText(sheet, row, 1, column.meaning, m_wrapped);
            ++row;
        }
        ++row; // an empty one between
        for (const QString &remark : m_content.remarks)
            writeText(sheet, row++, 1, remark, m_wrapped);
    }

    const TemplateWorkbook &m_content;
    const QByteArray m_path;
    lxw_workbook *m_workbook; ///< freed by writing it
    lxw_format *m_bold = nullptr;
    lxw_format *m_text = nullptr;
    lxw_format *m_wrapped = nullptr;
};

} // namespace

bool writeTemplateWorkbook(const QString &path, const TemplateWorkbook &content)
{
    return TemplateWriter(path, content).write();
}

int writeTranslatedTemplate(int argc, char *argv[], const std::function<NamedTemplate()> &makeTemplate)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "usage: " << arguments.value(0) << " TRANSLATION FOLDER\n";
        return 2;
    }
    QTranslator translator;
    if (!translator.load(arguments.at(1))) {
        errors << "cannot read " << arguments.at(1) << '\n';
        return 1;
    }
    QCoreApplication::installTranslator(&translator);
    const NamedTemplate made = makeTemplate();
    const QDir folder(arguments.at(2));
    const QString path = folder.filePath(made.fileName);
    if (!folder.mkpath(QStringLiteral(".")) || !writeTemplateWorkbook(path, made.content)) {
        errors << "cannot write " << path << '\n';
        return 1;
    }
    return 0;
}
