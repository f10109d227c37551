#include "device/search/searchreporttext.h"

#include "device/store/devicerow.h"
#include "device/store/ipv4address.h"
#include "sdk/searchreportblocks.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <numeric>

namespace {

using sdk::SearchDiscard;
using sdk::SearchInterfaceReport;
using sdk::SearchObstacle;

constexpr std::uint32_t bit(SearchObstacle obstacle)
{
    return 1U << static_cast<std::uint32_t>(obstacle);
}

/// The sum of a counter over the addresses of an interface.
template<typename Number>
quint64 sumOf(const QList<SearchInterfaceReport> &addresses, const Number &number)
{
    return std::accumulate(
        addresses.cbegin(), addresses.cend(), quint64(0),
        [&number](quint64 sum, const SearchInterfaceReport &address) { return sum + number(address); });
}

/// Combines the obstacles of an interface's addresses. NoResponse is dropped if another address has received
/// messages.
std::uint32_t obstaclesOf(const QList<SearchInterfaceReport> &addresses)
{
    std::uint32_t obstacles = 0;
    for (const SearchInterfaceReport &address : addresses)
        obstacles |= address.obstacles;
    if (sumOf(addresses, [](const SearchInterfaceReport &address) { return address.messagesReceived; }) > 0)
        obstacles &= ~bit(SearchObstacle::NoResponse);
    // Consequences of a more basic obstacle are left out.
    if ((obstacles & bit(SearchObstacle::InterfaceDown)) != 0)
        return bit(SearchObstacle::InterfaceDown);
    if ((obstacles & bit(SearchObstacle::NoLink)) != 0)
        return bit(SearchObstacle::NoLink);
    return obstacles;
}

/// Whether requests could be sent from an address.
bool wasSearched(const SearchInterfaceReport &address)
{
    return (address.obstacles & (bit(SearchObstacle::InterfaceDown) | bit(SearchObstacle::NoLink) |
                                 bit(SearchObstacle::NoMulticast) | bit(SearchObstacle::SendFailed))) == 0;
}

/// The addresses of each interface, in the order of the report.
QList<QList<SearchInterfaceReport>> interfacesOf(const sdk::SearchReport &report)
{
    QList<QList<SearchInterfaceReport>> interfaces;
    const std::size_t count = std::min<std::size_t>(report.count, sdk::maximumReportedInterfaces);
    for (std::size_t index = 0; index < count; ++index) {
        const SearchInterfaceReport &address = report.interfaces[index];
        const auto same = std::find_if(interfaces.begin(), interfaces.end(), [&address](const auto &known) {
            return known.first().name == address.name;
        });
        if (same == interfaces.end())
            interfaces.append({address});
        else
            same->append(address);
    }
    return interfaces;
}

} // namespace

QList<SearchReportBlock> SearchReportText::blocksOf(const sdk::SearchReport &report)
{
    QList<SearchReportBlock> blocks;
    for (const QList<SearchInterfaceReport> &addresses : interfacesOf(report))
        blocks.append(interfaceBlock(addresses));
    if (blocks.isEmpty())
        blocks.append({.title = tr("网卡"),
                       .obstacles = {{tr("本机没有可用的网卡"), tr("检查网卡是否已安装并启用。")}}});

    if (report.addressesAsked > 0) {
        SearchReportBlock block = {.title = tr("按地址搜索")};
        block.lines.append({tr("已询问"), tr("%1 个地址").arg(report.addressesAsked)});
        block.lines.append({tr("有应答"), tr("%1 个地址").arg(report.addressesResponding)});
        if (report.addressesNoRoute > 0)
            block.obstacles.append({tr("本机没有到其中 %1 个地址的路由").arg(report.addressesNoRoute),
                                    tr("为网卡设置网关，或添加一个与这些地址同一网段的地址。")});
        else if (report.addressesResponding == 0)
            block.obstacles.append(
                {tr("没有地址应答"), tr("检查搜索设置中的地址范围，以及设备是否已通电。")});
        blocks.append(block);
    }
    if (report.foreignDevices > 0)
        blocks.append(
            {.title = tr("其他网段"),
             .obstacles = {{tr("找到的 %1 台设备不在本机的任何网段内").arg(report.foreignDevices),
                            tr("登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。")}}});
    return blocks;
}

QString SearchReportText::networksOf(const sdk::SearchReport &report)
{
    QStringList networks;
    for (const QList<SearchInterfaceReport> &addresses : interfacesOf(report)) {
        for (const SearchInterfaceReport &entry : addresses) {
            const std::optional<std::uint32_t> address = ipv4Number(fieldText(entry.address));
            constexpr int bits = 32;
            if (!address || entry.prefixLength < 1 || entry.prefixLength > bits || !wasSearched(entry))
                continue;
            const std::uint32_t mask = ~std::uint32_t(0) << (bits - entry.prefixLength);
            const QString network =
                ipv4Text(*address & mask) + QLatin1Char('/') + QString::number(entry.prefixLength);
            if (!networks.contains(network))
                networks.append(network);
        }
    }
    return networks.join(QLatin1String(", "));
}

SearchReportBlock SearchReportText::interfaceBlock(const QList<SearchInterfaceReport> &addresses)
{
    SearchReportBlock block = {.title = fieldText(addresses.first().name)};
    QStringList texts;
    int sendError = 0;
    for (const SearchInterfaceReport &address : addresses) {
        // Qt appends "%interface" to a link-local address; the interface is the title already.
        const QString text = fieldText(address.address).section(QLatin1Char('%'), 0, 0);
        if (!text.isEmpty())
            texts.append(text + QLatin1Char('/') + QString::number(address.prefixLength));
        if (address.sendError != 0)
            sendError = address.sendError;
    }
    if (!texts.isEmpty())
        block.lines.append({tr("地址"), texts.join(QLatin1String(", "))});

    const auto sent = sumOf(addresses, [](const auto &address) { return address.requestsSent; });
    const auto received = sumOf(addresses, [](const auto &address) { return address.messagesReceived; });
    const auto found = sumOf(addresses, [](const auto &address) { return address.devicesFound; });
    if (sent > 0)
        block.lines.append({tr("已发送"), tr("%1 个请求").arg(sent)});
    if (sent > 0 || received > 0) {
        block.lines.append({tr("已收到"), tr("%1 条消息").arg(received)});
        block.lines.append({tr("找到"), tr("%1 台设备").arg(found)});
    }
    if (const QString discarded = discardedText(addresses); !discarded.isEmpty())
        block.lines.append({tr("未采用"), discarded});
    addObstacles(block, obstaclesOf(addresses), sendError);
    return block;
}

QString SearchReportText::discardedText(const QList<SearchInterfaceReport> &addresses)
{
    struct Reason
    {
        SearchDiscard reason;
        QString text;
    };
    const std::array<Reason, sdk::searchDiscards> reasons = {{
        {SearchDiscard::Unreadable, tr("无法识别的消息 %1 条")},
        {SearchDiscard::OtherKind, tr("非视频设备的消息 %1 条")},
        {SearchDiscard::NoService, tr("没有服务地址的消息 %1 条")},
        {SearchDiscard::ForeignAddress, tr("服务地址属于其他主机的消息 %1 条")},
        {SearchDiscard::Leaving, tr("设备离开网络的通知 %1 条")},
        {SearchDiscard::TooMany, tr("超出数量限制的消息 %1 条")},
    }};
    QStringList texts;
    for (const Reason &reason : reasons) {
        const auto count = sumOf(addresses, [&reason](const auto &address) {
            return address.discarded[static_cast<std::size_t>(reason.reason)];
        });
        if (count > 0)
            texts.append(reason.text.arg(count));
    }
    return texts.join(tr("，"));
}

void SearchReportText::addObstacles(SearchReportBlock &block, std::uint32_t obstacles, int sendError)
{
    const auto add = [&](SearchObstacle obstacle, const QString &text, const QString &advice) {
        if ((obstacles & bit(obstacle)) != 0)
            block.obstacles.append({text, advice});
    };
    add(SearchObstacle::InterfaceDown, tr("网卡已停用"), tr("在操作系统的网络设置中启用它。"));
    add(SearchObstacle::NoLink, tr("网络未连接"), tr("检查网线和交换机，或连接到无线网络。"));
    add(SearchObstacle::NoAddress, tr("没有IP地址"), tr("设置一个与设备同一网段的地址，或启用DHCP。"));
    add(SearchObstacle::NoMulticast, tr("网卡不能发送组播"), tr("在搜索设置中选择其他网段，按地址搜索。"));
    add(SearchObstacle::SendFailed, tr("系统拒绝发送请求：%1").arg(qt_error_string(sendError)),
        tr("检查本机的防火墙和网卡的设置。"));
    add(SearchObstacle::NoResponse, tr("没有收到任何应答"),
        tr("检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。"
           "也可以在搜索设置中按地址搜索。"));
}

QString SearchReportText::summaryOf(int devices, int missing)
{
    if (missing > 0)
        return tr("找到 %1 台设备，比上次搜索少 %2 台。").arg(devices).arg(missing);
    return devices > 0 ? tr("找到 %1 台设备。").arg(devices) : tr("没有找到设备。");
}

QString SearchReportText::textOf(const QList<SearchReportBlock> &blocks)
{
    QString text;
    for (const SearchReportBlock &block : blocks) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + block.title + QLatin1Char('\n');
        for (const SearchReportLine &line : block.lines)
            text += line.label + QLatin1String(": ") + line.value + QLatin1Char('\n');
        for (const SearchReportObstacle &obstacle : block.obstacles)
            text += QLatin1String("! ") + obstacle.text + QLatin1String("\n  ") + obstacle.advice +
                    QLatin1Char('\n');
    }
    return text;
}
