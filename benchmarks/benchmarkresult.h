// The results of measurements, and the table that displays them.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// One line of the table. A peer is another program, library or method that does the same work.
struct BenchmarkResult
{
    QString subject;            ///< what was measured, in English
    double value = 0;           ///< usually a median, in `unit`; smaller is better
    QString unit;               ///< as displayed, such as "ms"
    double budget = 0;          ///< in the same unit; a larger value is over budget
    std::optional<double> peer; ///< value of the peer, measured in the same run; nullopt: no comparison
    std::optional<double> largestRatio; ///< of `value` to `peer`; nullopt: no limit
    QString peerName;                   ///< empty without a peer
};

/// The median time of several runs of `work`, in milliseconds. `runs` is at least 1.
[[nodiscard]] double medianMilliseconds(int runs, const std::function<void()> &work);
/// The median of the values; of an even number of values the upper one of the middle two; 0 of none.
[[nodiscard]] double median(QList<double> values);

/// Prints the table to standard output. Returns false if a value is over its budget, or over its largest
/// ratio to the peer.
bool printResults(const QList<BenchmarkResult> &results);
