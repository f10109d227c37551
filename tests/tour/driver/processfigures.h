// Figures of this process that grow if something is not released.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct ProcessFigures
{
    double megabytes = 0;     ///< resident private memory, after free memory has been returned to the system
    double heapMegabytes = 0; ///< memory that the C library has allocated; 0 with another one than glibc
    int threads = 0;
    int descriptors = 0; ///< open file descriptors
    int objects = 0;     ///< QObjects, including items, of the windows and of the application
};

/// The threads and open file descriptors. The other figures are 0.
[[nodiscard]] ProcessFigures processCounts();

/// All figures. Collects the garbage of QML and returns free memory to the system first. Main thread only.
[[nodiscard]] ProcessFigures processFigures();

/// The median of the slopes between all pairs of values, per step; 0 for less than two values. Single
/// outliers do not affect it.
[[nodiscard]] double medianSlope(const QList<double> &values);

/// A text for each figure that grew over the rounds, whose figures are in their order; empty if none did. The
/// first quarter of the rounds, at least one round, is not compared for memory and objects, because it fills
/// caches and lists of results. Threads and descriptors are compared with the second round. Requires at least
/// two rounds. Growth per round is checked from eight rounds.
[[nodiscard]] QStringList growthOf(const QList<ProcessFigures> &rounds);
