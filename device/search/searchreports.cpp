#include "device/search/searchreports.h"

#include "sdk/netlibrary.h"
#include "sdk/searchreportblocks.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace {

using sdk::SearchInterfaceReport;
using sdk::SearchObstacle;
using sdk::SearchReport;

/// Difference of two counter values; the library may have reset the counter in between.
std::uint32_t added(std::uint32_t now, std::uint32_t before)
{
    return now >= before ? now - before : now;
}

constexpr std::uint32_t obstacleBit(SearchObstacle obstacle)
{
    return 1U << static_cast<std::uint32_t>(obstacle);
}

/// Obstacles that only multicast requests can have.
constexpr std::uint32_t groupObstacles = obstacleBit(SearchObstacle::NoMulticast) |
                                         obstacleBit(SearchObstacle::SendFailed) |
                                         obstacleBit(SearchObstacle::NoResponse);

std::span<SearchInterfaceReport> addressesOf(SearchReport &report)
{
    return std::span(report.interfaces)
        .first(std::min<std::size_t>(report.count, sdk::maximumReportedInterfaces));
}

/// Subtracts the counters of an address before the search.
void subtract(SearchInterfaceReport &address, const SearchInterfaceReport &before)
{
    address.requestsSent = added(address.requestsSent, before.requestsSent);
    address.messagesReceived = added(address.messagesReceived, before.messagesReceived);
    address.devicesFound = added(address.devicesFound, before.devicesFound);
    for (std::size_t reason = 0; reason < sdk::searchDiscards; ++reason)
        address.discarded[reason] = added(address.discarded[reason], before.discarded[reason]);
}

/// Subtracts the counters before a search without multicast requests, and removes multicast obstacles.
void subtract(SearchReport &report, SearchReport &before)
{
    report.addressesAsked = added(report.addressesAsked, before.addressesAsked);
    report.addressesResponding = added(report.addressesResponding, before.addressesResponding);
    report.addressesNoRoute = added(report.addressesNoRoute, before.addressesNoRoute);
    report.foreignDevices = added(report.foreignDevices, before.foreignDevices);
    const std::span<SearchInterfaceReport> known = addressesOf(before);
    for (SearchInterfaceReport &address : addressesOf(report)) {
        const auto same = std::find_if(known.begin(), known.end(), [&address](const auto &other) {
            return other.name == address.name && other.address == address.address;
        });
        if (same != known.end())
            subtract(address, *same);
        address.obstacles &= ~groupObstacles;
        address.sendError = 0;
    }
}

} // namespace

SearchReports::SearchReports(std::shared_ptr<sdk::NetLibrary> net, QObject *parent)
    : QObject(parent), m_net(std::move(net))
{
}

SearchReports::~SearchReports() = default;

QVariantList SearchReports::blocks() const
{
    QVariantList blocks;
    for (const SearchReportBlock &block : m_blocks) {
        QVariantList lines;
        for (const SearchReportLine &line : block.lines)
            lines.append(
                QVariantMap{{SearchReportKey::label, line.label}, {SearchReportKey::value, line.value}});
        QVariantList obstacles;
        for (const SearchReportObstacle &obstacle : block.obstacles)
            obstacles.append(QVariantMap{{SearchReportKey::text, obstacle.text},
                                         {SearchReportKey::advice, obstacle.advice}});
        blocks.append(QVariantMap{{SearchReportKey::title, block.title},
                                  {SearchReportKey::lines, lines},
                                  {SearchReportKey::obstacles, obstacles}});
    }
    return blocks;
}

QString SearchReports::text() const
{
    return m_time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + QLatin1Char('\n') + summary() +
           QLatin1String("\n\n") + SearchReportText::textOf(m_blocks);
}

void SearchReports::begin(bool localSegment, const QString &range)
{
    m_scope = QLatin1String(localSegment ? "local " : "") + range;
    m_before.reset();
    if (auto before = std::make_unique<SearchReport>(); !localSegment && read(*before))
        m_before = std::move(before);
    m_devices = m_missing = 0;
    m_isStopped = false;
    m_blocks.clear();
    m_networks.clear();
    Q_EMIT changed();
}

void SearchReports::end(int devices, bool isStopped)
{
    m_devices = devices;
    m_missing = 0;
    m_isDismissed = false;
    m_isStopped = isStopped;
    if (!isStopped) {
        // A stopped search, or one of other networks, is not comparable.
        if (m_scope == m_countedScope)
            m_missing = std::max(0, m_countedDevices - devices);
        m_countedScope = m_scope;
        m_countedDevices = devices;
    }
    m_time = QDateTime::currentDateTime();
    m_blocks.clear();
    SearchReport report{};
    if (read(report)) {
        if (m_before)
            subtract(report, *m_before);
        m_blocks = SearchReportText::blocksOf(report);
        m_networks = SearchReportText::networksOf(report);
    }
    Q_EMIT changed();
}

void SearchReports::dismiss()
{
    m_isDismissed = true;
    Q_EMIT changed();
}

bool SearchReports::read(SearchReport &report) const
{
    report.size = sizeof(report);
    return m_net && m_net->NetGetSearchReport(report);
}
