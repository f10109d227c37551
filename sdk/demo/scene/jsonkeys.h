// A reader of JSON objects whose errors name the key and the expected value.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace sdk::demo {

/// Reads the keys of one object. Only the first error is kept. The caller checks error() when it has read all
/// keys: if it is not empty, the read values are meaningless.
class JsonKeys
{
public:
    /// `where` names the object in errors: "device 3 (02:1a:c5:00:40:17)".
    JsonKeys(const QJsonObject &object, const QString &where) : m_object(object), m_where(where) {}

    /// The value of `key`, or `fallback` if the object has no such key. A value of another type, and a number
    /// that is not whole or not from `minimum` to `maximum`, is an error, and returns `fallback`.
    QString text(const QString &key, const QString &fallback = QString());
    int number(const QString &key, int minimum, int maximum, int fallback);
    bool boolean(const QString &key, bool fallback);

    /// The value of `key`, empty if the object has no such key. A value of another type is an error.
    QJsonObject object(const QString &key);
    QJsonArray list(const QString &key);

    /// The index of the string of `key` in `choices`; `fallback` if the object has no such key. Any other
    /// value is an error, and returns `fallback`.
    int choice(const QString &key, const QStringList &choices, int fallback);

    /// As text() and number(), for mandatory keys: a missing key and an empty text are errors, too.
    QString requiredText(const QString &key);
    int requiredNumber(const QString &key, int minimum, int maximum);

    /// The value of `key` of any type; undefined if the object has no such key.
    QJsonValue value(const QString &key);

    /// Reports an error if the object has a key that no call has read: the key would have no effect and is
    /// probably a typing error. To be called after all other calls.
    void rejectOtherKeys();

    /// Sets the error, unless there is one: `key` is missing or is not `expected` ("a dotted IPv4 address").
    void reportError(const QString &key, const QString &expected);

    /// The first error, an English sentence with the object and the key; empty without one.
    [[nodiscard]] QString error() const { return m_error; }

private:
    /// The value of `key`; undefined without the key, and with an error for another type.
    QJsonValue typedValue(const QString &key, QJsonValue::Type type, const QString &expected);

    QJsonObject m_object;
    QString m_where;
    QStringList m_readKeys;
    QString m_error;
};

/// A JSON value for an error message, truncated after 60 characters: "a list" and "an object" for these
/// types.
[[nodiscard]] QString shownJsonValue(const QJsonValue &value);

} // namespace sdk::demo
