#include "cgi/internal/responsepaths.h"

QString ResponsePaths::own(const QString &path)
{
    constexpr qsizetype remembered = 100; // responses of the same second end within seconds
    int number = 0;
    {
        const std::lock_guard lock(m_mutex);
        number = ++m_counts[path];
        if (number == 1)
            m_order.enqueue(path);
        if (m_order.size() > remembered)
            m_counts.remove(m_order.dequeue());
    }
    if (number == 1)
        return path;
    const qsizetype point = path.lastIndexOf(QLatin1Char('.'));
    return path.left(point) + QStringLiteral("_%1").arg(number) + path.mid(point);
}
