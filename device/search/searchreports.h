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

/// Keys of the maps of SearchReports::blocks(). The other values are strings in the user's language.
namespace SearchReportKey {
inline constexpr QLatin1StringView title("title");
inline constexpr QLatin1StringView lines("lines"); ///< list of maps of `label` and `value`
inline constexpr QLatin1StringView label("label");
inline constexpr QLatin1StringView value("value");
inline constexpr QLatin1StringView obstacles("obstacles"); ///< list of maps of `text` and `advice`
inline constexpr QLatin1StringView text("text");
inline constexpr QLatin1StringView advice("advice");
} // namespace SearchReportKey

/// The report of the last search for QML, to explain an empty or shorter device list. Lives on the main
/// thread.
class SearchReports : public QObject
{
    Q_OBJECT
    /// Whether a report exists. False during a search.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed)
    /// How many devices fewer than in the previous search, not counting stopped ones. 0 if that was a search
    /// of other networks, if the last search was stopped, or if the message was dismissed.
    Q_PROPERTY(int missing READ missing NOTIFY changed)
    /// Whether the last search was stopped and the user has not dismissed the message.
    Q_PROPERTY(bool incomplete READ isIncomplete NOTIFY changed)
    /// SearchReportText::summaryOf() of the last search, also if the message was dismissed.
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    /// The IPv4 networks of the host that were searched, "192.168.1.0/24, 10.0.0.0/8"; empty if unknown.
    Q_PROPERTY(QString networks READ networks NOTIFY changed)
    /// Maps of "title", "lines" (maps of "label" and "value") and "obstacles" (maps of "text" and "advice").
    Q_PROPERTY(QVariantList blocks READ blocks NOTIFY changed)
    /// The complete report as plain text: time of the end, summary and blocks.
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    /// `net` may be null: no report exists then.
    explicit SearchReports(std::shared_ptr<sdk::NetLibrary> net, QObject *parent = nullptr);
    ~SearchReports() override;

    [[nodiscard]] bool isAvailable() const { return !m_blocks.isEmpty(); }
    [[nodiscard]] int missing() const { return m_isDismissed ? 0 : m_missing; }
    [[nodiscard]] bool isIncomplete() const { return m_isStopped && !m_isDismissed; }
    [[nodiscard]] QString summary() const { return SearchReportText::summaryOf(m_devices, m_missing); }
    [[nodiscard]] QString networks() const { return m_networks; }
    [[nodiscard]] QVariantList blocks() const;
    [[nodiscard]] QString text() const;

    /// Called when a search starts; clears the report. `range` identifies the address range, empty for none.
    Q_INVOKABLE void begin(bool localSegment, const QString &range);

    /// Called when the search has ended or was stopped. `devices` is the number of devices found.
    Q_INVOKABLE void end(int devices, bool isStopped);

    /// Hides the messages about missing devices and a stopped search.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] bool read(sdk::SearchReport &report) const;

    const std::shared_ptr<sdk::NetLibrary> m_net;
    QString m_scope; ///< key of the searched networks
    /// Counters before the search. Null with the local segment: the library resets its counters then.
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
