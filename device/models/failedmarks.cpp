#include "device/models/failedmarks.h"

#include "device/models/batchreport.h"

#include <algorithm>

namespace {

/// Whether the batch is finished with the device: done, failed or not reached.
bool isFinal(int result)
{
    return result != BatchReport::Waiting && !BatchReport::isSkipped(result);
}

/// Limits the length of a message: the response of a device may be long.
QString shortened(const QString &message)
{
    constexpr qsizetype longest = 160;
    const QString line = message.simplified();
    return line.size() > longest ? line.first(longest) + QStringLiteral("…") : line;
}

} // namespace

void FailedMarks::note(const QString &work, const QString &title, const QList<Outcome> &outcomes)
{
    bool isChanged = false;
    for (const Outcome &outcome : outcomes) {
        if (isFinal(outcome.result))
            isChanged |= removeFailure(outcome.identity, work);
    }
    // A batch may contain a device more than once. One failure is enough for a mark.
    for (const Outcome &outcome : outcomes) {
        if (!isFinal(outcome.result) || outcome.result == BatchReport::Succeeded)
            continue;
        m_failures[outcome.identity].prepend(
            {.work = work,
             .title = title,
             .result = outcome.result,
             .message = tr("%1：%2").arg(title, shortened(outcome.message))});
        isChanged = true;
    }
    if (isChanged)
        Q_EMIT changed();
}

bool FailedMarks::removeFailure(const QString &identity, const QString &work)
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

QStringList FailedMarks::operations() const
{
    QStringList titles;
    for (const QList<Failure> &failures : m_failures) {
        for (const Failure &failure : failures)
            titles.append(failure.title);
    }
    titles.sort();
    titles.removeDuplicates();
    return titles;
}

int FailedMarks::count(const QString &operation) const
{
    if (operation.isEmpty())
        return static_cast<int>(m_failures.size());
    return static_cast<int>(std::count_if(m_failures.keyBegin(), m_failures.keyEnd(),
                                          [&](const QString &name) { return contains(name, operation); }));
}

bool FailedMarks::contains(const QString &identity, const QString &operation) const
{
    return operation.isEmpty() ? m_failures.contains(identity) : !reasonOf(identity, operation).isEmpty();
}

QString FailedMarks::reasonOf(const QString &identity, const QString &operation) const
{
    const QList<Failure> failures = m_failures.value(identity);
    const auto last = std::ranges::find_if(
        failures, [&](const Failure &failure) { return operation.isEmpty() || failure.title == operation; });
    return last == failures.cend() ? QString() : resultName(last->result);
}

bool FailedMarks::isOnlyNotDone(const QString &identity) const
{
    const QList<Failure> failures = m_failures.value(identity);
    return std::all_of(failures.cbegin(), failures.cend(),
                       [](const Failure &failure) { return failure.result == BatchReport::NotDone; });
}

QString FailedMarks::messagesOf(const QString &identity) const
{
    QStringList lines;
    const QList<Failure> failures = m_failures.value(identity);
    for (const Failure &failure : failures)
        lines.append(failure.message);
    lines.removeDuplicates(); // different work may have the same title
    return lines.join(QLatin1Char('\n'));
}
