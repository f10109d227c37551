// The report of a search in words.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace sdk {
struct SearchInterfaceReport;
struct SearchReport;
} // namespace sdk

// The parts of a report, in the user's language.

struct SearchReportLine
{
    QString label = {};
    QString value = {};
};

struct SearchReportObstacle
{
    QString text = {};
    QString advice = {}; ///< what the user can do
};

/// An interface, or what concerns all of them.
struct SearchReportBlock
{
    QString title = {};
    QList<SearchReportLine> lines = {};
    QList<SearchReportObstacle> obstacles = {};
};

class SearchReportText
{
    Q_DECLARE_TR_FUNCTIONS(SearchReportText)
public:
    /// A block for each interface with all its addresses, then one for the addresses that were asked one by
    /// one and one for devices of other networks. A number that says nothing has no line.
    [[nodiscard]] static QList<SearchReportBlock> blocksOf(const sdk::SearchReport &report);

    /// The IPv4 networks of the interfaces, each once.
    [[nodiscard]] static QString networksOf(const sdk::SearchReport &report);

    /// What the search has found, in a sentence. `missing` are the devices fewer than the time before.
    [[nodiscard]] static QString summaryOf(int devices, int missing);

    /// The blocks as one text, each under its title.
    [[nodiscard]] static QString textOf(const QList<SearchReportBlock> &blocks);

private:
    static void addObstacles(SearchReportBlock &block, std::uint32_t obstacles, int sendError);
    [[nodiscard]] static SearchReportBlock interfaceBlock(const QList<sdk::SearchInterfaceReport> &addresses);
    [[nodiscard]] static QString discardedText(const QList<sdk::SearchInterfaceReport> &addresses);
};
