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

/// The report of the last search of the window, to explain a list that is empty or has become shorter. Lives
/// on the scene's thread.
class SearchReports : public QObject
{
    Q_OBJECT
    /// Whether there is a report.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed)
    /// Devices fewer than the search of the same networks has found before; 0 if it is not known or
    /// dismissed.
    Q_PROPERTY(int missing READ missing NOTIFY changed)
    /// Whether the last search was stopped before its end, and the user has not dismissed that.
    Q_PROPERTY(bool incomplete READ isIncomplete NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    /// The IPv4 networks of this computer that were searched, "192.168.1.0/24, 10.0.0.0/8"; empty if unknown.
    Q_PROPERTY(QString networks READ networks NOTIFY changed)
    /// Maps of "title", "lines" (maps of "label" and "value") and "obstacles" (of "text" and "advice").
    Q_PROPERTY(QVariantList blocks READ blocks NOTIFY changed)
    /// The whole report as plain text.
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    /// `net` may be null: then there is never a report.
    explicit SearchReports(std::shared_ptr<sdk::NetLibrary> net, QObject *parent = nullptr);
    ~SearchReports() override;

    [[nodiscard]] bool isAvailable() const { return !m_blocks.isEmpty(); }
    [[nodiscard]] int missing() const { return m_isDismissed ? 0 : m_missing; }
    [[nodiscard]] bool isIncomplete() const { return m_isStopped && !m_isDismissed; }
    [[nodiscard]] QString summary() const { return SearchReportText::summaryOf(m_devices, m_missing); }
    [[nodiscard]] QString networks() const { return m_networks; }
    [[nodiscard]] QVariantList blocks() const;
    [[nodiscard]] QString text() const;

    /// A search begins: of the local segment, and of the addresses that `range` names if it is not empty.
    Q_INVOKABLE void begin(bool localSegment, const QString &range);

    /// The search has ended, by itself or stopped, with so many `devices`.
    Q_INVOKABLE void end(int devices, bool isStopped);

    /// The user has seen that devices are missing, or that the search was stopped.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] bool read(sdk::SearchReport &report) const;

    const std::shared_ptr<sdk::NetLibrary> m_net;
    QString m_scope; ///< equal texts are equal networks
    /// What was counted before the search. Null with the local segment: the library then begins again.
    std::unique_ptr<sdk::SearchReport> m_before;
    QString m_countedScope;   ///< of the last search that was not stopped
    int m_countedDevices = 0; ///< of that search
    int m_devices = 0;
    int m_missing = 0;
    bool m_isStopped = false;
    bool m_isDismissed = false;
    QList<SearchReportBlock> m_blocks;
    QString m_networks;
    QDateTime m_time; ///< of the end of the search
};
