#include "app/recentlog.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <unistd.h>

using namespace Qt::StringLiterals;

void RecentLog::add(QStringView message)
{
    constexpr qsizetype enough = maximumBytes; // a character has at least one byte
    const qsizetype end = message.indexOf(u'\n');
    const QStringView line = message.left(std::min(end < 0 ? message.size() : end, 4 * enough));
    const QByteArray text = withoutPasswords(line).left(enough).toUtf8();
    const std::scoped_lock lock(m_mutex);
    const std::size_t added = m_added.load(std::memory_order_relaxed);
    auto &slot = m_lines.at(added % maximumLines);
    const auto length = std::min<std::size_t>(text.size(), maximumBytes);
    std::memcpy(slot.data(), text.constData(), length);
    slot.at(length) = '\0';
    m_added.store(added + 1, std::memory_order_release);
}

void RecentLog::writeTo(int descriptor) const
{
    const std::size_t added = m_added.load(std::memory_order_acquire);
    const std::size_t count = std::min(added, maximumLines);
    for (std::size_t line = added - count; line < added; ++line) {
        const char *text = m_lines[line % maximumLines].data(); // in range: at() might throw
        // The report is as complete as possible: a failed write is no reason to stop.
        [[maybe_unused]] const ssize_t written = ::write(descriptor, text, ::strnlen(text, maximumBytes));
        [[maybe_unused]] const ssize_t ended = ::write(descriptor, "\n", 1);
    }
}

QString RecentLog::withoutPasswords(QStringView message)
{
    // Responses of devices have passwords under any name.
    static const QRegularExpression response(u"(Response Body: ).+"_s,
                                             QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression named(
        uR"(((?:pass|pwd|secret)\w*["']?\s*[=:>]\s*)("(?:[^"\\]|\\.)*"?|'[^']*'?|[^\s&<"']+))"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression header(u"(Authorization:\\s*\\w+\\s+).+"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression inAddress(u"(//[^/@\\s:]*:)[^/\\s]+@"_s);
    return message.toString()
        .replace(response, u"\\1***"_s)
        .replace(named, u"\\1***"_s)
        .replace(header, u"\\1***"_s)
        .replace(inAddress, u"\\1***@"_s);
}
