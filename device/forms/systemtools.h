#pragma once

#include <QObject>
#include <QStringList>

/// Functions of the maintenance pages for QML: time zones, host time, checks of input. Lives on the main
/// thread.
class SystemTools : public QObject
{
    Q_OBJECT
    /// The 40 time zones of the devices as "UTC+08:00" etc. The index is the number of the zone in
    /// SystemDataKey::timeZone. East of Greenwich first, then west; the last seven are in no order.
    Q_PROPERTY(QStringList timeZones READ timeZones CONSTANT)
public:
    /// The problem of a new password. The values are in the order of the checks.
    enum PasswordFault
    {
        NoFault = 0,
        TooWeak, ///< fewer than two kinds of characters, see passwordStrength(); also an empty password
        NoConfirmation,
        NotTheSame,      ///< password and confirmation differ
        LengthOutOfRange ///< not 8 to 32 characters
    };
    Q_ENUM(PasswordFault)

    explicit SystemTools(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static QStringList timeZones();

    /// The index in timeZones of the zone with the offset of `text` ("UTC+08:00", also with one digit for
    /// the hour or without a sign); -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int timeZoneIndex(const QString &text) const;

    /// The local time of the host as "yyyy-MM-dd HH:mm:ss".
    Q_INVOKABLE [[nodiscard]] QString timeOfThisComputer() const;

    /// Whether `text` is an IPv4 address, an IPv6 address without a zone, or a host name. A name whose last
    /// part consists of digits is not one.
    Q_INVOKABLE [[nodiscard]] bool isHost(const QString &text) const;

    /// The first problem of a new password that the user has typed twice; NoFault if it can be set.
    Q_INVOKABLE [[nodiscard]] PasswordFault newPasswordFault(const QString &password,
                                                             const QString &confirmation) const;
};
