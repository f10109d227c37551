#include "benchmarks/benchmarkresult.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

double medianMilliseconds(int runs, const std::function<void()> &work)
{
    constexpr double nanosecondsPerMillisecond = 1e6;
    QList<double> times;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(static_cast<double>(timer.nsecsElapsed()) / nanosecondsPerMillisecond);
    }
    return median(times);
}

bool printResults(const QList<BenchmarkResult> &results)
{
    bool within = true;
    QTextStream out(stdout);
    for (const BenchmarkResult &result : results) {
        const bool ratioFits =
            !result.peer || !result.largestRatio || result.value <= *result.peer * *result.largestRatio;
        const bool fits = result.value <= result.budget && ratioFits;
        within = within && fits;
        out << result.subject.leftJustified(48) << QString::number(result.value, 'f', 1).rightJustified(8)
            << ' ' << result.unit.leftJustified(4) << "budget "
            << QString::number(result.budget).rightJustified(5) << (fits ? "  kept" : "  OVER");
        if (result.peer) {
            out << "   " << QString::number(result.value / *result.peer, 'f', 2) << " x " << result.peerName
                << " (" << QString::number(*result.peer, 'f', 1) << ' ' << result.unit << ')';
            if (result.largestRatio)
                out << ", at most " << *result.largestRatio;
        }
        out << '\n';
    }
    return within;
}
