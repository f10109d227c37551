// A device factory for the scene that notes what it is asked, and answers what a test says.
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class RecordingFactory : public QObject
{
    Q_OBJECT
public:
    QStringList asked;           ///< "operation argument ...", without reads of the list
    int loginResult = 0;         ///< of every login
    int nextPort = 0;            ///< the local port that the next request gets; 0 is a failure
    bool takesChanges = true;    ///< whether rows can be changed
    QVariantMap listed;          ///< rows by "address:port"
    std::function<void()> login; ///< called during a login

    Q_INVOKABLE int getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType = 0,
                                   const QString &devicePort = QString())
    {
        asked.append(QStringList{"login", family, address, account, password, port,
                                 QString::number(loginType), devicePort}
                         .join(' ')
                         .trimmed());
        if (login)
            login();
        if (loginResult == 0)
            listed.insert((loginType == 1 ? QStringLiteral("127.0.0.1") : address) + ':' + port,
                          QVariantMap{{"mac", "mac of " + address}});
        return loginResult;
    }
    Q_INVOKABLE int setAddDevice(const QString &family, const QString &id, const QString &account,
                                 const QString &password, const QString &port, int wish)
    {
        asked.append(
            QStringList{"port", family, id, account, password, port, QString::number(wish)}.join(' '));
        return nextPort > 0 ? nextPort++ : 0;
    }
    Q_INVOKABLE QString p2pFault() const { return QStringLiteral("p2p/trans"); }
    Q_INVOKABLE void addP2PPort(int port, int webPort)
    {
        asked.append(QStringLiteral("pair %1 %2").arg(port).arg(webPort));
    }
    Q_INVOKABLE void releaseP2PPort(int port) { asked.append(QStringLiteral("release %1").arg(port)); }
    Q_INVOKABLE QVariantMap getDeviceInfo(const QString &, const QString &ipport) const
    {
        return listed.value(ipport).toMap();
    }
    Q_INVOKABLE QVariantMap getDeviceDetail(const QString &, const QString &mac)
    {
        return mac.isEmpty() ? QVariantMap() : QVariantMap{{"mac", mac}, {"httpport", 8080}};
    }
    Q_INVOKABLE QString getErrorName(int code) { return QStringLiteral("result %1").arg(code); }
    Q_INVOKABLE bool updataDeviceInfo(const QString &family, const QString &key, const QVariant &value,
                                      const QString &mac, const QString &ipport)
    {
        asked.append(QStringList{"change", family, key, value.toString(), mac, ipport}.join(' '));
        return takesChanges;
    }
};
