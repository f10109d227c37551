// Makes the workbook that users begin from, in the language of a translation file: run by the build.
//
//   configtools_cgitemplate TRANSLATION FOLDER
#include "cgi/cgiconfigmanage.h"
#include "cgi/commandworkbook.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <QTranslator>

#include <xlsxwriter.h>

#include <memory>

namespace {

/// The sheets' own texts.
class TemplateText
{
    Q_DECLARE_TR_FUNCTIONS(TemplateText)
public:
    struct Column
    {
        QString title;
        QString example;
        QString meaning;
        double width;
    };

    [[nodiscard]] static QList<Column> columns()
    {
        const QStringList titles = CommandWorkbook::requiredTitles();
        return {
            {titles.at(0), QStringLiteral("192.0.2.10"),
             tr("设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。"), 18},
            {titles.at(1), QStringLiteral("37777"), tr("设备的登录端口，只用于检查账号，不用于发送命令。"),
             10},
            {titles.at(2), QStringLiteral("admin"), tr("登录设备的用户名，不能包含冒号。"), 14},
            {titles.at(3), QStringLiteral("********"), tr("登录设备的密码。执行完成后请从文件中删除。"), 14},
            {titles.at(4), QStringLiteral("/cgi-bin/info?action=read"),
             tr("以“/”开头的命令。设备接受的命令会发送两次。必填。"), 52},
            {tr("协议"), QStringLiteral("0"), tr("0表示HTTP，其他整数表示HTTPS；不填时为HTTP。"), 8},
            {tr("结果"), QString(),
             tr("由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。"), 40},
        };
    }

    [[nodiscard]] static QString commandSheet() { return tr("命令"); }
    [[nodiscard]] static QString explanationSheet() { return tr("说明"); }
    [[nodiscard]] static QString columnTitle() { return tr("列"); }
    [[nodiscard]] static QString meaningTitle() { return tr("含义"); }
    [[nodiscard]] static QList<QString> remarks()
    {
        return {tr("请保留第一行的标题，并在执行前用自己的内容替换示例行。"),
                tr("IP和命令都为空的行会被跳过。"), tr("执行时请不要在其他程序中打开此文件。")};
    }
};

class TemplateWriter
{
public:
    explicit TemplateWriter(const QString &path)
        : m_path(QFile::encodeName(path)), m_workbook(workbook_new(m_path.constData()))
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
        writeCommands();
        writeExplanations();
        return workbook_close(m_workbook) == LXW_NO_ERROR;
    }

private:
    lxw_worksheet *addSheet(const QString &name)
    {
        return workbook_add_worksheet(m_workbook, name.toUtf8().constData());
    }

    static void put(lxw_worksheet *sheet, int row, int column, const QString &text, lxw_format *format)
    {
        worksheet_write_string(sheet, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column),
                               text.toUtf8().constData(), format);
    }

    void writeCommands()
    {
        lxw_worksheet *sheet = addSheet(TemplateText::commandSheet());
        const QList<TemplateText::Column> columns = TemplateText::columns();
        for (int column = 0; column < columns.size(); ++column) {
            const auto place = static_cast<lxw_col_t>(column);
            worksheet_set_column(sheet, place, place, columns.at(column).width, m_text);
            put(sheet, 0, column, columns.at(column).title, m_bold);
            if (!columns.at(column).example.isEmpty())
                put(sheet, 1, column, columns.at(column).example, m_text);
        }
        worksheet_freeze_panes(sheet, 1, 0);
    }

    void writeExplanations()
    {
        constexpr double titleWidth = 20;
        constexpr double meaningWidth = 80;
        lxw_worksheet *sheet = addSheet(TemplateText::explanationSheet());
        worksheet_set_column(sheet, 0, 0, titleWidth, nullptr);
        worksheet_set_column(sheet, 1, 1, meaningWidth, nullptr);
        put(sheet, 0, 0, TemplateText::columnTitle(), m_bold);
        put(sheet, 0, 1, TemplateText::meaningTitle(), m_bold);
        int row = 1;
        for (const TemplateText::Column &column : TemplateText::columns()) {
            put(sheet, row, 0, column.title, m_wrapped);
            put(sheet, row, 1, column.meaning, m_wrapped);
            ++row;
        }
        ++row; // an empty one between
        for (const QString &remark : TemplateText::remarks())
            put(sheet, row++, 1, remark, m_wrapped);
    }

    const QByteArray m_path;
    lxw_workbook *m_workbook; ///< freed by writing it
    lxw_format *m_bold = nullptr;
    lxw_format *m_text = nullptr;
    lxw_format *m_wrapped = nullptr;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "usage: configtools_cgitemplate TRANSLATION FOLDER\n";
        return 2;
    }
    QTranslator translator;
    if (!translator.load(arguments.at(1))) {
        errors << "cannot read " << arguments.at(1) << '\n';
        return 1;
    }
    QCoreApplication::installTranslator(&translator);
    const QDir folder(arguments.at(2));
    const QString path = folder.filePath(CGIConfigManage::templateFileName());
    if (!folder.mkpath(QStringLiteral(".")) || !TemplateWriter(path).write()) {
        errors << "cannot write " << path << '\n';
        return 1;
    }
    return 0;
}
