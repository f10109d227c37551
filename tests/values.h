// Several values of an object as one text, so that one comparison checks all of them.
#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QVariantMap>

/// The values of `keys` (separated by spaces) as text, separated by "|", in the order of the keys. Entries of
/// a list are separated by commas. A missing value is empty.
inline QString valuesOf(const QVariantMap &object, const QString &keys)
{
    QStringList texts;
    for (const QString &key : keys.split(' ')) {
        const QStringList list = object.value(key).toStringList();
        texts.append(list.isEmpty() ? object.value(key).toString() : list.join(','));
    }
    return texts.join('|');
}

inline QString valuesOf(const QJsonObject &object, const QString &keys)
{
    return valuesOf(object.toVariantMap(), keys);
}
