#include "device/failedmarks.h"

#include "device/batchreport.h"

#include <QStringList>

namespace {

/// What a device answered may be long.
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
        if (outcome.result != BatchReport::Waiting)
            isChanged |= forget(outcome.identity, work);
    }
    // A batch may name a device more than once: it is marked if it failed in one place.
    for (const Outcome &outcome : outcomes) {
        if (outcome.result == BatchReport::Waiting || outcome.result == BatchReport::Succeeded)
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

QString FailedMarks::wordsOf(const QString &identity) const
{
    QStringList lines;
    const QList<Failure> failures = m_failures.value(identity);
    for (const Failure &failure : failures)
        lines.append(failure.words);
    return lines.join(QLatin1Char('\n'));
}
