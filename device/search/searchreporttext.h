// Formats the report of a search as text in the user's language.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace sdk {
struct SearchInterfaceReport;
struct SearchReport;
} // namespace sdk

// Parts of a report.

struct SearchReportLine
{
    QString label = {};
    QString value = {};
};

struct SearchReportObstacle
{
    QString text = {};
    QString advice = {}; ///< instruction for the user
};

/// A section: one interface, or one topic of all interfaces.
struct SearchReportBlock
{
    QString title = {};
    QList<SearchReportLine> lines = {};
    QList<SearchReportObstacle> obstacles = {};
};

/// Formats search reports. Stateless.
class SearchReportText
{
    Q_DECLARE_TR_FUNCTIONS(SearchReportText)
public:
    /// A block for each interface with its addresses, or one for the lack of interfaces. Then a block for the
    /// addresses queried one by one and a block for devices of other networks, if there are any. Counters of
    /// an interface without requests and messages are omitted.
    [[nodiscard]] static QList<SearchReportBlock> blocksOf(const sdk::SearchReport &report);

    /// The IPv4 networks that requests could be sent to, without duplicates: "192.168.1.0/24, 10.0.0.0/8".
    [[nodiscard]] static QString networksOf(const sdk::SearchReport &report);

    /// One sentence on the number of devices. `missing` is the decrease since the previous search, 0 if it is
    /// unknown.
    [[nodiscard]] static QString summaryOf(int devices, int missing);

    /// All blocks as plain text, separated by empty lines. "!" precedes obstacles.
    [[nodiscard]] static QString textOf(const QList<SearchReportBlock> &blocks);

private:
    static void addObstacles(SearchReportBlock &block, std::uint32_t obstacles, int sendError);
    [[nodiscard]] static SearchReportBlock interfaceBlock(const QList<sdk::SearchInterfaceReport> &addresses);
    [[nodiscard]] static QString discardedText(const QList<sdk::SearchInterfaceReport> &addresses);
};
