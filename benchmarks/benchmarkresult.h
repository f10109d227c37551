// The results of measurements.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// One line of the table.
struct BenchmarkResult
{
    QString subject;
    double value = 0; ///< median
    QString unit;
    double budget = 0;                  ///< in the same unit; a larger value is over budget
    std::optional<double> peer;         ///< median of the peer in the same run; nullopt: no comparison
    std::optional<double> largestRatio; ///< of `value` to `peer`; nullopt: no limit
    QString peerName;
};

/// The median time of several runs of `work`, in milliseconds.
[[nodiscard]] double medianMilliseconds(int runs, const std::function<void()> &work);
/// The upper median of an even number of values; 0 of none.
[[nodiscard]] double median(QList<double> values);

/// Prints the table. Returns false if a result is over its budget or its ratio.
bool printResults(const QList<BenchmarkResult> &results);
