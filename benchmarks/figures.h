// Measuring and printing.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// One line of the table.
struct Figure
{
    QString subject;
    double value = 0; ///< median
    QString unit;
    double budget = 0;                  ///< in the same unit: the value is to stay below it
    std::optional<double> peer;         ///< the peer's median in the same run
    std::optional<double> largestRatio; ///< to the peer's
    QString peerName;
};

/// Median of some runs of `work`, in milliseconds.
[[nodiscard]] double medianMilliseconds(int runs, const std::function<void()> &work);
[[nodiscard]] double median(QList<double> values);

/// Prints the table. Returns false when a figure is over its budget.
bool printFigures(const QList<Figure> &figures);
