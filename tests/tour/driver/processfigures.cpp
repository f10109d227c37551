#include "tests/tour/driver/processfigures.h"

#include "tests/files/filecontents.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

#include <algorithm>
#include <functional>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr double allowedMegabytes = 16;            // over the last three quarters of the rounds
constexpr double allowedMegabytesPerRound = 0.125; // over the same rounds
constexpr double allowedObjectsPerRound = 2;       // delegates of lists are created and removed in batches
constexpr qsizetype enoughForSlope = 8;

/// The number of a line of /proc/self/status, such as "Threads:"; 0 if there is no such line.
double statusNumber(const QByteArray &name)
{
    const QList<QByteArray> lines = fileContents(QStringLiteral("/proc/self/status")).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size()).simplified().split(' ').constFirst().toDouble();
    }
    return 0;
}

void collectObjects(QObject *object, QSet<QObject *> &found)
{
    if (!object || found.contains(object))
        return;
    found.insert(object);
    for (QObject *child : object->children())
        collectObjects(child, found);
    if (auto *item = qobject_cast<QQuickItem *>(object)) {
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collectObjects(child, found);
    }
    if (auto *window = qobject_cast<QQuickWindow *>(object))
        collectObjects(window->contentItem(), found);
}

int objectCount()
{
    QSet<QObject *> found;
    collectObjects(QCoreApplication::instance(), found);
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows)
        collectObjects(window, found);
    return static_cast<int>(found.size());
}

QString slopeText(const QString &figure, double slope, const QString &unit)
{
    return QStringLiteral("%1: +%2 %3 per round").arg(figure).arg(slope, 0, 'f', 2).arg(unit);
}

} // namespace

ProcessFigures processCounts()
{
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    // Without the descriptor that lists the folder.
    const auto open =
        descriptors.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size() - 1;
    return {.threads = static_cast<int>(statusNumber("Threads:")), .descriptors = static_cast<int>(open)};
}

ProcessFigures processFigures()
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (QQmlEngine *engine = qmlEngine(window)) {
            engine->collectGarbage();
            break;
        }
    }
    // Objects without a reference in QML are deleted later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ProcessFigures figures = processCounts();
    constexpr double kilo = 1024;
#ifdef __GLIBC__
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2(); // of all arenas, and of allocations with their own mapping
    figures.heapMegabytes = double(heap.uordblks + heap.hblkhd) / (kilo * kilo);
#endif
    figures.megabytes = statusNumber("RssAnon:") / kilo;
    figures.objects = objectCount();
    return figures;
}

double medianSlope(const QList<double> &values)
{
    QList<double> slopes;
    for (qsizetype first = 0; first < values.size(); ++first) {
        for (qsizetype second = first + 1; second < values.size(); ++second)
            slopes.append((values.at(second) - values.at(first)) / double(second - first));
    }
    if (slopes.isEmpty())
        return 0;
    std::ranges::sort(slopes);
    const qsizetype middle = slopes.size() / 2;
    return slopes.size() % 2 == 1 ? slopes.at(middle) : (slopes.at(middle - 1) + slopes.at(middle)) / 2;
}

QStringList growthOf(const QList<ProcessFigures> &rounds)
{
    QStringList growth;
    const ProcessFigures &second = rounds.at(1);
    const ProcessFigures &last = rounds.constLast();
    // Caches and kept results fill in the first quarter.
    const qsizetype filled = std::max<qsizetype>(1, rounds.size() / 4);
    if (const double grown = last.megabytes - rounds.at(filled).megabytes; grown > allowedMegabytes)
        growth.append(QStringLiteral("memory: +%1 MB since round %2").arg(grown, 0, 'f', 1).arg(filled + 1));
    if (last.threads > second.threads)
        growth.append(QStringLiteral("threads: %1 instead of %2").arg(last.threads).arg(second.threads));
    if (last.descriptors > second.descriptors)
        growth.append(QStringLiteral("file descriptors: %1 instead of %2")
                          .arg(last.descriptors)
                          .arg(second.descriptors));
    if (rounds.size() < enoughForSlope)
        return growth;
    const QList<ProcessFigures> later = rounds.mid(filled);
    const auto slopeOf = [&later](const std::function<double(const ProcessFigures &)> &figure) {
        QList<double> values;
        for (const ProcessFigures &round : later)
            values.append(figure(round));
        return medianSlope(values);
    };
    const double memory = slopeOf([](const ProcessFigures &round) { return round.megabytes; });
    if (memory > allowedMegabytesPerRound)
        growth.append(slopeText(QStringLiteral("memory"), memory, QStringLiteral("MB")));
    const double objects = slopeOf([](const ProcessFigures &round) { return double(round.objects); });
    if (objects > allowedObjectsPerRound)
        growth.append(slopeText(QStringLiteral("objects"), objects, QStringLiteral("objects")));
    return growth;
}
