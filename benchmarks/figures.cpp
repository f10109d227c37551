#include "benchmarks/figures.h"

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

bool printFigures(const QList<Figure> &figures)
{
    bool within = true;
    QTextStream out(stdout);
    for (const Figure &figure : figures) {
        const bool ratioFits =
            !figure.peer || !figure.largestRatio || figure.value <= *figure.peer * *figure.largestRatio;
        const bool fits = figure.value <= figure.budget && ratioFits;
        within = within && fits;
        out << figure.subject.leftJustified(48) << QString::number(figure.value, 'f', 1).rightJustified(8)
            << ' ' << figure.unit.leftJustified(4) << "budget "
            << QString::number(figure.budget).rightJustified(5) << (fits ? "  kept" : "  OVER");
        if (figure.peer) {
            out << "   " << QString::number(figure.value / *figure.peer, 'f', 2) << " x " << figure.peerName
                << " (" << QString::number(*figure.peer, 'f', 1) << ' ' << figure.unit << ')';
            if (figure.largestRatio)
                out << ", at most " << *figure.largestRatio;
        }
        out << '\n';
    }
    return within;
}
