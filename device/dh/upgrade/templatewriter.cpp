// Writes the template workbook for upgrade documents in the language of a translation file. Run by the build.
//
//   configtools_upgradetemplate TRANSLATION FOLDER
#include "device/dh/upgrade/upgradedocument.h"
#include "sheets/templateworkbook.h"

#include <QCoreApplication>

namespace {

/// The texts of the template.
class UpgradeTemplateText
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeTemplateText)
public:
    [[nodiscard]] static QList<TemplateWorkbook::Column> columns()
    {
        const QStringList titles = UpgradeDocument::requiredTitles();
        return {
            {titles.at(0), QStringLiteral("192.0.2.10"), tr("设备的IP地址。必填。"), 18},
            {titles.at(1), QStringLiteral("37777"), tr("设备的登录端口，不填时为37777。"), 10},
            {titles.at(2), QStringLiteral("admin"),
             tr("登录设备的用户名；与密码都不填时使用程序已知的账号。"), 14},
            {titles.at(3), QStringLiteral("********"), tr("登录设备的密码。升级完成后请从文件中删除。"), 14},
            {titles.at(4), QStringLiteral("B-2230-IR_2.900.0.bin"),
             tr("升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。"), 52},
            {tr("结果"), QString(), tr("由程序填写：升级前后的版本，或失败原因。"), 40},
        };
    }

    [[nodiscard]] static NamedTemplate made()
    {
        return {.fileName = UpgradeTools::templateFileName(),
                .content = {.sheet = tr("升级"),
                            .explanationSheet = tr("说明"),
                            .columnTitle = tr("列"),
                            .meaningTitle = tr("含义"),
                            .columns = columns(),
                            .remarks = {tr("请保留第一行的标题，并在升级前用自己的内容替换示例行。"),
                                        tr("IP和升级文件都为空的行会被跳过。"),
                                        tr("升级时请不要在其他程序中打开此文件。")}}};
    }
};

} // namespace

int main(int argc, char *argv[])
{
    return writeTranslatedTemplate(argc, argv, &UpgradeTemplateText::made);
}
