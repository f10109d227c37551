#include "device/searchreports.h"

#include "sdk/netlibrary.h"
#include "sdk/searchreportblocks.h"

#include <algorithm>
#include <utility>

namespace {

/// What has been added to a count since; the library may have begun to count again.
std::uint32_t added(std::uint32_t now, std::uint32_t before)
{
    return now >= before ? now - before : now;
}

} // namespace

SearchReports::SearchReports(std::shared_ptr<sdk::NetLibrary> net, QObject *parent)
    : QObject(parent), m_net(std::move(net))
{
}

QVariantList SearchReports::blocks() const
{
    QVariantList blocks;
    for (const SearchReportBlock &block : m_blocks) {
        QVariantList lines;
        for (const SearchReportLine &line : block.lines)
            lines.append(
                QVariantMap{{QStringLiteral("label"), line.label}, {QStringLiteral("value"), line.value}});
        QVariantList obstacles;
        for (const SearchReportObstacle &obstacle : block.obstacles)
            obstacles.append(QVariantMap{{QStringLiteral("text"), obstacle.text},
                                         {QStringLiteral("advice"), obstacle.advice}});
        blocks.append(QVariantMap{{QStringLiteral("title"), block.title},
                                  {QStringLiteral("lines"), lines},
                                  {QStringLiteral("obstacles"), obstacles}});
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
    m_before = {};
    sdk::SearchReport report{};
    if (!localSegment && read(report))
        m_before = {.asked = report.addressesAsked,
                    .answered = report.addressesAnswered,
                    .noRoute = report.addressesNoRoute};
    m_devices = m_missing = 0;
    m_blocks.clear();
    Q_EMIT changed();
}

void SearchReports::end(int devices, bool isStopped)
{
    m_devices = devices;
    m_missing = 0;
    m_isDismissed = false;
    if (!isStopped) {
        // A search that was stopped, or one of other networks, finds fewer devices for that reason.
        if (m_scope == m_countedScope)
            m_missing = std::max(0, m_countedDevices - devices);
        m_countedScope = m_scope;
        m_countedDevices = devices;
    }
    m_time = QDateTime::currentDateTime();
    m_blocks.clear();
    sdk::SearchReport report{};
    if (read(report)) {
        report.addressesAsked = added(report.addressesAsked, m_before.asked);
        report.addressesAnswered = added(report.addressesAnswered, m_before.answered);
        report.addressesNoRoute = added(report.addressesNoRoute, m_before.noRoute);
        m_blocks = SearchReportText::blocksOf(report);
    }
    Q_EMIT changed();
}

void SearchReports::dismiss()
{
    m_isDismissed = true;
    Q_EMIT changed();
}

bool SearchReports::read(sdk::SearchReport &report) const
{
    report.size = sizeof(report);
    return m_net && m_net->NetGetSearchReport(report);
}
