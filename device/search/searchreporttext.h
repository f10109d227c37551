// Formats the report of a search as text in the user's language.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace sdk {
struct SearchInterfaceReport;
struct SearchReport;
} // namespace sdk

// Parts of a report. All strings are in the user's language.

/// A fact: a label and its value.
struct SearchReportLine
{
    QString label = {};
    QString value = {};
};

/// A reason why devices were not found.
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

/// Formats search reports. Stateless; any thread.
class SearchReportText
{
    Q_DECLARE_TR_FUNCTIONS(SearchReportText)
public:
    /// A block for each interface of the host, with its addresses, counters and obstacles; without an
    /// interface, one block that states this. Counters of an interface without requests and messages are
    /// omitted. Then a block for the addresses of the searched range, and a block for found devices whose
    /// address is in no network of the host, if there are any. Never empty.
    [[nodiscard]] static QList<SearchReportBlock> blocksOf(const sdk::SearchReport &report);

    /// The IPv4 networks of the host that requests could be sent to, without duplicates, as one text:
    /// "192.168.1.0/24, 10.0.0.0/8". Empty if there are none.
    [[nodiscard]] static QString networksOf(const sdk::SearchReport &report);

    /// One sentence on the number of devices found. `missing` is the number of devices that the previous
    /// search found in addition; 0 if there are none or the number is unknown.
    [[nodiscard]] static QString summaryOf(int devices, int missing);

    /// All blocks as plain text, separated by empty lines. "!" precedes an obstacle; its advice is the next
    /// line.
    [[nodiscard]] static QString textOf(const QList<SearchReportBlock> &blocks);

private:
    /// Adds the obstacles of these bits (see sdk::SearchObstacle). `sendError` is the system's error number.
    static void addObstacles(SearchReportBlock &block, std::uint32_t obstacles, int sendError);
    // `addresses` are those of one interface.
    [[nodiscard]] static SearchReportBlock interfaceBlock(const QList<sdk::SearchInterfaceReport> &addresses);
    [[nodiscard]] static QString discardedText(const QList<sdk::SearchInterfaceReport> &addresses);
};
