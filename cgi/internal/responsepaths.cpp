#include "cgi/internal/responsepaths.h"

QString ResponsePaths::own(const QString &path)
{
    constexpr qsizetype remembered = 100; // responses that end together have similar times
    int number = 0;
    {
        const std::lock_guard lock(m_mutex);
        number = ++m_counts[path];
        if (m_counts.size() > remembered)
            m_counts.erase(m_counts.cbegin());
    }
    if (number == 1)
        return path;
    const qsizetype point = path.lastIndexOf(QLatin1Char('.'));
    return path.left(point) + QStringLiteral("_%1").arg(number) + path.mid(point);
}
