#include "device/registry/devicedetail.h"

#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

namespace {

constexpr int largestPort = 65535;

/// Adds the lines of a group. Unknown values are omitted.
class Group
{
public:
    Group(QList<DeviceDetailLine> &lines, QString name) : m_lines(lines), m_name(std::move(name)) {}

    void add(const QString &label, const QString &value)
    {
        if (!value.isEmpty())
            m_lines.append({.group = m_name, .label = label, .value = value});
    }
    void addPort(const QString &label, const QVariant &value)
    {
        const int port = value.toInt();
        if (port > 0 && port <= largestPort)
            add(label, QString::number(port));
    }
    void addCount(const QString &label, const QVariant &value)
    {
        if (value.isValid() && value.toInt() >= 0)
            add(label, QString::number(value.toInt()));
    }

private:
    QList<DeviceDetailLine> &m_lines;
    const QString m_name;
};

} // namespace

QList<DeviceDetailLine> DeviceDetail::linesOf(const QVariantMap &detail)
{
    QList<DeviceDetailLine> lines;
    const auto text = [&detail](QLatin1StringView key) {
        return detail.value(key).toString();
    };
    const auto yesOrNo = [&detail](QLatin1StringView key, const QString &yes, const QString &no) {
        return !detail.contains(key) ? QString() : detail.value(key).toBool() ? yes : no;
    };
    const bool isP2P = text(DeviceRowKey::loginType) == QLatin1String("P2P");
    const QString ipport = text(DeviceRowKey::ipport);
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    const QString address = ipport.left(colon);
    const QString port = colon < 0 ? QString() : ipport.mid(colon + 1);

    Group identity(lines, tr("标识"));
    identity.add(tr("名称"), text(DeviceRowKey::name));
    identity.add(tr("类型"), text(DeviceRowKey::type));
    identity.add(tr("型号"), text(DeviceRowKey::model));
    identity.add(tr("序列号"), text(DeviceDetailKey::serial));
    identity.add(QStringLiteral("UUID"), text(DeviceDetailKey::uuid));
    identity.add(tr("状态"), yesOrNo(DeviceRowKey::state, tr("已初始化"), tr("未初始化")));

    Group versions(lines, tr("版本"));
    versions.add(tr("版本号"), text(DeviceRowKey::vision));

    Group network(lines, tr("网络"));
    if (address.startsWith(QLatin1Char('[')))
        network.add(tr("IPv6地址"), address.mid(1, address.size() - 2));
    else if (!isP2P)
        network.add(tr("IPv4地址"), address);
    // The row of a device behind NAT has the address of the tunnel; only the device reports its own.
    if (const QString own = text(DeviceDetailKey::address); own != address)
        network.add(tr("设备地址"), own);
    network.add(tr("子网掩码"), text(DeviceDetailKey::submask));
    network.add(tr("网关"), text(DeviceDetailKey::gateway));
    network.add(QStringLiteral("DHCP"), yesOrNo(DeviceDetailKey::dhcp, tr("是"), tr("否")));
    network.add(QStringLiteral("MAC"), text(DeviceRowKey::mac));
    network.add(tr("主机名"), text(DeviceDetailKey::hostName));
    network.add(tr("本机地址"), text(DeviceDetailKey::localAddress));

    Group ports(lines, tr("端口"));
    ports.addPort(isP2P ? tr("本地端口") : tr("服务端口"), port);
    if (detail.value(DeviceDetailKey::servicePort).toString() != port)
        ports.addPort(tr("设备服务端口"), detail.value(DeviceDetailKey::servicePort));
    ports.addPort(tr("HTTP端口"),
                  detail.contains(DeviceDetailKey::webPort)    ? detail.value(DeviceDetailKey::webPort)
                  : detail.value(DeviceRowKey::https).toBool() ? QVariant()
                                                               : detail.value(DeviceRowKey::httpport));
    ports.addPort(tr("HTTPS端口"),
                  detail.contains(DeviceDetailKey::httpsPort)  ? detail.value(DeviceDetailKey::httpsPort)
                  : detail.value(DeviceRowKey::https).toBool() ? detail.value(DeviceRowKey::httpport)
                                                               : QVariant());
    ports.addPort(tr("RTSP端口"), detail.value(DeviceDetailKey::rtspPort));
    ports.addCount(tr("最大连接数"), detail.value(DeviceDetailKey::maximumConnections));

    Group channels(lines, tr("通道"));
    channels.addCount(tr("通道数"), detail.value(DeviceDetailKey::channelCount));
    channels.addCount(tr("已连接通道"), detail.value(DeviceDetailKey::connectedCount));
    channels.addCount(tr("报警输入"), detail.value(DeviceDetailKey::alarmInputs));

    Group storage(lines, tr("存储"));
    storage.addCount(tr("硬盘数"), detail.value(DeviceDetailKey::disks));

    Group account(lines, tr("添加与账号"));
    const QString loginType = text(DeviceRowKey::loginType);
    account.add(tr("添加方式"), detail.isEmpty()      ? QString()
                                : isP2P               ? tr("手动添加（P2P）")
                                : loginType.isEmpty() ? tr("搜索")
                                                      : tr("手动添加（%1）").arg(loginType));
    if (isP2P)
        account.add(tr("P2P ID"), text(DeviceRowKey::name));
    account.add(tr("P2P端口"), text(DeviceRowKey::devp2pPort));
    account.add(tr("用户名"), text(DeviceRowKey::username));
    return lines;
}

QString DeviceDetail::textOf(const QList<DeviceDetailLine> &lines)
{
    QString text;
    QString group;
    for (const DeviceDetailLine &line : lines) {
        if (line.group != group) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + line.group + QLatin1Char('\n');
            group = line.group;
        }
        text += line.text() + QLatin1Char('\n');
    }
    return text;
}
