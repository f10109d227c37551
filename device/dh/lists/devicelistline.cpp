#include "device/dh/lists/devicelistline.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

const std::array<ListColumnName, listColumnCount> &listColumnNames()
{
    static constexpr std::array<ListColumnName, listColumnCount> names = {{
        {u"设备分类", QLatin1StringView("DeviceCategory")},
        {u"设备类型", QLatin1StringView("DeviceType")},
        {u"接入协议", QLatin1StringView("AccessProtocol")},
        {u"添加模式", QLatin1StringView("AddMode")},
        {u"设备名称", QLatin1StringView("DeviceName")},
        {u"IP地址/域名/注册ID/设备序列号", QLatin1StringView("IPAddress")},
        {u"设备端口", QLatin1StringView("DevicePort")},
        {u"组织", QLatin1StringView("Organization")},
        {u"服务IP", QLatin1StringView("ServiceIP")},
        {u"用户名", QLatin1StringView("Username")},
        {u"密码", QLatin1StringView("Password")},
        {u"型号", QLatin1StringView("Model")},
        {u"MAC", QLatin1StringView("MAC")},
        {u"序列号", QLatin1StringView("SerialNumber")},
        {u"版本号", QLatin1StringView("Version")},
        {u"子网掩码", QLatin1StringView("SubnetMask")},
        {u"网关", QLatin1StringView("Gateway")},
        {u"初始化状态", QLatin1StringView("InitStatus")},
        {u"结果", QLatin1StringView("Result")},
    }};
    return names;
}

bool DeviceListContents::add(DeviceListLine line)
{
    if (lines.size() >= maximumLines)
        return refuse(QCoreApplication::translate("DeviceList", "文件内的设备超过 %1 台").arg(maximumLines));
    // Lines have many fields in common: a field that equals the one above shares its memory.
    if (!lines.empty()) {
        for (std::size_t column = 0; column < line.values.size(); ++column) {
            const QString &above = lines.back().values.at(column);
            if (line.values.at(column) == above)
                line.values.at(column) = above;
        }
    }
    lines.push_back(std::move(line));
    return true;
}

bool DeviceListContents::refuse(const QString &reason)
{
    lines.clear();
    refusal = reason;
    return false;
}

QString faultOfText(const QString &text)
{
    if (text.size() > maximumListText)
        return QCoreApplication::translate("DeviceList", "字段过长");
    const bool isClean = std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control;
    });
    return isClean ? QString() : QCoreApplication::translate("DeviceList", "字段内有控制字符");
}

QString listText(ListColumn column, QStringView text)
{
    const QStringView meant = column == ListColumn::Password ? text : text.trimmed();
    return meant.left(maximumListText + 1).toString();
}
