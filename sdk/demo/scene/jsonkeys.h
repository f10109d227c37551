// Reading the keys of a JSON object with complaints that say what is wrong and what was expected.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace sdk::demo {

/// Reads the keys of one object. The first complaint stays; after it the values that are read mean nothing.
class JsonKeys
{
public:
    /// `where` names the object in complaints: "device 3 (02:1a:c5:00:40:17)".
    JsonKeys(const QJsonObject &object, const QString &where) : m_object(object), m_where(where) {}

    /// The value of `key`, or `fallback` when the object has no such key.
    QString text(const QString &key, const QString &fallback = QString());
    int number(const QString &key, int minimum, int maximum, int fallback);
    bool boolean(const QString &key, bool fallback);
    QJsonObject object(const QString &key);
    QJsonArray list(const QString &key);

    /// The place of the text of `key` in `choices`, `fallback` without that key.
    int choice(const QString &key, const QStringList &choices, int fallback);

    /// The same for keys that must be there.
    QString requiredText(const QString &key);
    int requiredNumber(const QString &key, int minimum, int maximum);

    /// The value of `key` as it is; undefined when the object has no such key.
    QJsonValue value(const QString &key);

    /// Complains about a key that no call has asked for: it would have no effect, and is most likely a slip.
    void rejectOtherKeys();

    /// Complains that the value of `key` is not `expected` ("a dotted IPv4 address").
    void complain(const QString &key, const QString &expected);

    /// The first complaint, empty while there is none.
    [[nodiscard]] QString error() const { return m_error; }

private:
    /// The value of `key`, undefined without it and, with a complaint, when it has another type.
    QJsonValue typedValue(const QString &key, QJsonValue::Type type, const QString &expected);

    QJsonObject m_object;
    QString m_where;
    QStringList m_askedKeys;
    QString m_error;
};

/// A JSON value as a complaint shows it: its own spelling, cut when it is long.
[[nodiscard]] QString shownJsonValue(const QJsonValue &value);

} // namespace sdk::demo
