#include "sdk/demo/scene/jsonkeys.h"

#include <QJsonDocument>

#include <cmath>

namespace sdk::demo {

QString shownJsonValue(const QJsonValue &value)
{
    constexpr qsizetype longest = 60;
    if (value.isArray())
        return QStringLiteral("a list");
    if (value.isObject())
        return QStringLiteral("an object");
    // A document holds only arrays and objects, so the value is serialised in an array.
    QString shown = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    shown = shown.sliced(1, shown.size() - 2);
    return shown.size() <= longest ? shown : shown.first(longest) + QStringLiteral("…");
}

QJsonValue JsonKeys::value(const QString &key)
{
    m_readKeys.append(key);
    return m_object.value(key);
}

QJsonValue JsonKeys::typedValue(const QString &key, QJsonValue::Type type, const QString &expected)
{
    QJsonValue found = value(key);
    if (found.type() == type || found.isUndefined())
        return found;
    reportError(key, expected);
    return QJsonValue(QJsonValue::Undefined);
}

QString JsonKeys::text(const QString &key, const QString &fallback)
{
    return typedValue(key, QJsonValue::String, QStringLiteral("a text")).toString(fallback);
}

int JsonKeys::number(const QString &key, int minimum, int maximum, int fallback)
{
    const QString expected = QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum);
    const QJsonValue found = typedValue(key, QJsonValue::Double, expected);
    if (found.isUndefined())
        return fallback;
    const double number = found.toDouble();
    if (number < minimum || number > maximum || number != std::floor(number)) {
        reportError(key, expected);
        return fallback;
    }
    return static_cast<int>(number);
}

bool JsonKeys::boolean(const QString &key, bool fallback)
{
    return typedValue(key, QJsonValue::Bool, QStringLiteral("true or false")).toBool(fallback);
}

QJsonObject JsonKeys::object(const QString &key)
{
    return typedValue(key, QJsonValue::Object, QStringLiteral("an object")).toObject();
}

QJsonArray JsonKeys::list(const QString &key)
{
    return typedValue(key, QJsonValue::Array, QStringLiteral("a list")).toArray();
}

int JsonKeys::choice(const QString &key, const QStringList &choices, int fallback)
{
    const QString expected = QStringLiteral("one of \"%1\"").arg(choices.join(QStringLiteral("\", \"")));
    const QJsonValue found = typedValue(key, QJsonValue::String, expected);
    if (found.isUndefined())
        return fallback;
    const qsizetype index = choices.indexOf(found.toString());
    if (index < 0) {
        reportError(key, expected);
        return fallback;
    }
    return static_cast<int>(index);
}

QString JsonKeys::requiredText(const QString &key)
{
    QString found = text(key);
    if (found.isEmpty())
        reportError(key, QStringLiteral("a non-empty string"));
    return found;
}

int JsonKeys::requiredNumber(const QString &key, int minimum, int maximum)
{
    if (!m_object.contains(key))
        reportError(key, QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
    return number(key, minimum, maximum, minimum);
}

void JsonKeys::rejectOtherKeys()
{
    for (auto entry = m_object.constBegin(); entry != m_object.constEnd() && m_error.isEmpty(); ++entry) {
        if (!m_readKeys.contains(entry.key())) {
            m_error = QStringLiteral("%1: \"%2\" is not a known key; known are %3")
                          .arg(m_where, entry.key(), m_readKeys.join(QStringLiteral(", ")));
        }
    }
}

void JsonKeys::reportError(const QString &key, const QString &expected)
{
    if (!m_error.isEmpty())
        return;
    const QJsonValue found = m_object.value(key);
    if (found.isUndefined())
        m_error = QStringLiteral("%1: \"%2\" is missing; it must be %3").arg(m_where, key, expected);
    else
        m_error = QStringLiteral("%1: \"%2\" must be %3, but is %4")
                      .arg(m_where, key, expected, shownJsonValue(found));
}

} // namespace sdk::demo
