#pragma once

#include "device/search/searchreporttext.h"

#include <QDateTime>
#include <QObject>
#include <QVariantList>

#include <memory>

namespace sdk {
class NetLibrary;
struct SearchReport;
} // namespace sdk

/// Keys of the maps of SearchReports::blocks(). A value is a string in the user's language unless stated
/// otherwise.
namespace SearchReportKey {
inline constexpr QLatin1StringView title("title");
inline constexpr QLatin1StringView lines("lines"); ///< list of maps of `label` and `value`
inline constexpr QLatin1StringView label("label");
inline constexpr QLatin1StringView value("value");
inline constexpr QLatin1StringView obstacles("obstacles"); ///< list of maps of `text` and `advice`
inline constexpr QLatin1StringView text("text");
inline constexpr QLatin1StringView advice("advice");
} // namespace SearchReportKey

/// The report of the last search for QML, to explain an empty or shorter device list. The search page calls
/// begin() and end(); the report is read from the network library in end(). Lives on the main thread.
class SearchReports : public QObject
{
    Q_OBJECT
    /// Whether a report exists. False before the end of the first search, during a search, and if the network
    /// library has no report.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed)
    /// The number of devices by which the last search found fewer than the search before it that was not
    /// stopped. 0 if it did not find fewer, if the two searched different networks, if the last search was
    /// stopped, during a search, or after dismiss().
    Q_PROPERTY(int missing READ missing NOTIFY changed)
    /// Whether the last search was stopped. False during a search and after dismiss().
    Q_PROPERTY(bool incomplete READ isIncomplete NOTIFY changed)
    /// One sentence with the numbers of devices that the last search found and that are missing, in the
    /// user's language; also after dismiss(). It states that no device was found during a search and before
    /// the first one.
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    /// The IPv4 networks of the host to which requests can be sent, "192.168.1.0/24, 10.0.0.0/8", also if
    /// only an address range was searched; empty without a report.
    Q_PROPERTY(QString networks READ networks NOTIFY changed)
    /// The blocks of the report as maps with the keys of SearchReportKey: "title", "lines" and "obstacles".
    /// Empty without a report.
    Q_PROPERTY(QVariantList blocks READ blocks NOTIFY changed)
    /// The complete report as plain text: time of the end, summary and blocks. Meaningful only if
    /// `available`.
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    /// `net` may be null: no report exists then, but missing() and summary() are set.
    explicit SearchReports(std::shared_ptr<sdk::NetLibrary> net, QObject *parent = nullptr);
    ~SearchReports() override;

    [[nodiscard]] bool isAvailable() const { return !m_blocks.isEmpty(); }
    [[nodiscard]] int missing() const { return m_isDismissed ? 0 : m_missing; }
    [[nodiscard]] bool isIncomplete() const { return m_isStopped && !m_isDismissed; }
    [[nodiscard]] QString summary() const { return SearchReportText::summaryOf(m_devices, m_missing); }
    [[nodiscard]] QString networks() const { return m_networks; }
    [[nodiscard]] QVariantList blocks() const;
    [[nodiscard]] QString text() const;

    /// Called before a search starts; clears the report. `localSegment`: the local segment is searched.
    /// `range` is a text that identifies the searched address range; empty for none. Searches with the same
    /// two values are compared in `missing`.
    Q_INVOKABLE void begin(bool localSegment, const QString &range);

    /// Called when the search has ended or was stopped; reads the report. `devices` is the number of devices
    /// found.
    Q_INVOKABLE void end(int devices, bool isStopped);

    /// The user has dismissed the messages about missing devices and a stopped search. The report stays.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed(); ///< emitted by begin(), end() and dismiss()

private:
    /// Reads the report of the library. Returns false if there is none.
    [[nodiscard]] bool read(sdk::SearchReport &report) const;

    const std::shared_ptr<sdk::NetLibrary> m_net;
    QString m_scope; ///< both parameters of begin() as one text
    /// Counters before the search, to be subtracted. Null for a search of the local segment: the library
    /// resets its counters then.
    std::unique_ptr<sdk::SearchReport> m_before;
    QString m_countedScope;   ///< m_scope of the last search that was not stopped
    int m_countedDevices = 0; ///< devices of that search
    int m_devices = 0;
    int m_missing = 0;
    bool m_isStopped = false;
    bool m_isDismissed = false;
    QList<SearchReportBlock> m_blocks;
    QString m_networks;
    QDateTime m_time; ///< of the end of the search
};
