#include "device/models/failedmarks.h"

#include "device/models/batchreport.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Whether the batch is finished with the device: done, failed or not reached.
bool isFinal(int result)
{
    return result != BatchReport::Waiting && !BatchReport::isSkipped(result);
}

/// Limits the length of a message: the response of a device may be long.
QString shortened(const QString &words)
{
    constexpr qsizetype longest = 160;
    const QString line = words.simplified();
    return line.size() > longest ? line.first(longest) + QStringLiteral("…") : line;
}

} // namespace

void FailedMarks::note(const QString &work, const QString &title, const QList<Outcome> &outcomes)
{
    bool isChanged = false;
    for (const Outcome &outcome : outcomes) {
        if (isFinal(outcome.result))
            isChanged |= forget(outcome.identity, work);
    }
    // A batch may contain a device more than once. One failure is enough for a mark.
    for (const Outcome &outcome : outcomes) {
        if (!isFinal(outcome.result) || outcome.result == BatchReport::Succeeded)
            continue;
        m_failures[outcome.identity].prepend({.work = work,
                                              .result = outcome.result,
                                              .words = tr("%1：%2").arg(title, shortened(outcome.words))});
        isChanged = true;
    }
    if (isChanged)
        Q_EMIT changed();
}

bool FailedMarks::forget(const QString &identity, const QString &work)
{
    const auto failures = m_failures.find(identity);
    if (failures == m_failures.end())
        return false;
    const bool wasThere =
        failures->removeIf([&](const Failure &failure) { return failure.work == work; }) > 0;
    if (failures->isEmpty())
        m_failures.remove(identity);
    return wasThere;
}

void FailedMarks::clear()
{
    if (m_failures.isEmpty())
        return;
    m_failures.clear();
    Q_EMIT changed();
}

QString FailedMarks::reasonOf(const QString &identity) const
{
    const QList<Failure> failures = m_failures.value(identity);
    return failures.isEmpty() ? QString() : resultName(failures.constFirst().result);
}

bool FailedMarks::isOnlyNotDone(const QString &identity) const
{
    const QList<Failure> failures = m_failures.value(identity);
    return std::all_of(failures.cbegin(), failures.cend(),
                       [](const Failure &failure) { return failure.result == BatchReport::NotDone; });
}

QString FailedMarks::wordsOf(const QString &identity) const
{
    QStringList lines;
    const QList<Failure> failures = m_failures.value(identity);
    for (const Failure &failure : failures)
        lines.append(failure.words);
    return lines.join(QLatin1Char('\n'));
}
