// Build tool: creates the template workbook of commands in the language of a translation file.
//
//   configtools_cgitemplate TRANSLATION FOLDER
#include "cgi/cgiconfigmanage.h"
#include "cgi/commandworkbook.h"
#include "sheets/templateworkbook.h"

#include <QCoreApplication>

namespace {

/// The strings of the sheets.
class TemplateText
{
    Q_DECLARE_TR_FUNCTIONS(TemplateText)
public:
    [[nodiscard]] static QList<TemplateWorkbook::Column> columns()
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

    [[nodiscard]] static NamedTemplate content()
    {
        return {.fileName = CGIConfigManage::templateFileName(),
                .content = {.sheet = tr("命令"),
                            .explanationSheet = tr("说明"),
                            .columnTitle = tr("列"),
                            .meaningTitle = tr("含义"),
                            .columns = columns(),
                            .remarks = {tr("请保留第一行的标题，并在执行前用自己的内容替换示例行。"),
                                        tr("IP和命令都为空的行会被跳过。"),
                                        tr("执行时请不要在其他程序中打开此文件。")}}};
    }
};

} // namespace

int main(int argc, char *argv[])
{
    return writeTranslatedTemplate(argc, argv, &TemplateText::content);
}
