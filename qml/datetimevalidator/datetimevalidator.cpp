#include "datetimevalidator.h"

#include <QDateTime>

#include <algorithm>

void DateTimeValidator::setFormat(const QString &format)
{
    if (m_format == format)
        return;
    m_format = format;
    Q_EMIT formatChanged();
    Q_EMIT changed();
}

bool DateTimeValidator::isComplete(const QString &text) const
{
    if (text.size() != m_format.size())
        return false;
    // Separately: a local time that daylight saving skips on this host may be valid on a device.
    const QStringList formats = m_format.split(QLatin1Char(' '));
    const QStringList parts = text.split(QLatin1Char(' '));
    if (formats.size() != parts.size())
        return false;
    for (qsizetype part = 0; part < parts.size(); ++part) {
        const bool isDate = formats.at(part).contains(QLatin1Char('y'));
        if (isDate ? !QDate::fromString(parts.at(part), formats.at(part)).isValid()
                   : !QTime::fromString(parts.at(part), formats.at(part)).isValid())
            return false;
    }
    return true;
}

QValidator::State DateTimeValidator::validate(QString &text, int &) const
{
    const bool isPossible =
        text.size() <= m_format.size() && std::all_of(text.cbegin(), text.cend(), [this](QChar sign) {
            const bool isDigit = sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
            return isDigit || (!sign.isLetter() && m_format.contains(sign));
        });
    if (!isPossible)
        return Invalid;
    return isComplete(text) ? Acceptable : Intermediate;
}
