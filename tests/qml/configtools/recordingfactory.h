// A device factory for the scene that notes which rows it is to change.
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

class RecordingFactory : public QObject
{
    Q_OBJECT
public:
    QStringList asked;        ///< "change argument ..."
    bool takesChanges = true; ///< whether rows can be changed

    Q_INVOKABLE bool updataDeviceInfo(const QString &family, const QString &key, const QVariant &value,
                                      const QString &mac, const QString &ipport)
    {
        asked.append(QStringList{"change", family, key, value.toString(), mac, ipport}.join(' '));
        return takesChanges;
    }
};
