#pragma once

#include <QObject>
#include <QStringList>

/// What the scene's pages for the maintenance of devices compute and decide.
class SystemTools : public QObject
{
    Q_OBJECT
    /// "UTC+08:00": the time zones in the numbering of devices, whose last seven stand out of order.
    Q_PROPERTY(QStringList timeZones READ timeZones CONSTANT)
public:
    /// What is wrong with a new password, in the order of looking.
    enum PasswordFault
    {
        NoFault = 0,
        TooWeak, ///< fewer than two kinds of characters
        NoPassword,
        NoConfirmation,
        NotTheSame,      ///< as the confirmation
        LengthOutOfRange ///< below 8 or above 32 characters
    };
    Q_ENUM(PasswordFault)

    explicit SystemTools(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static QStringList timeZones();

    /// The number of the zone with the offset of `text` ("UTC+08:00"), -1 when devices do not have it.
    Q_INVOKABLE [[nodiscard]] int timeZoneIndex(const QString &text) const;

    /// The time of this computer as "yyyy-MM-dd HH:mm:ss".
    Q_INVOKABLE [[nodiscard]] QString timeOfThisComputer() const;

    /// Whether a device can look for a server by this text: an IPv4 or IPv6 address, or a host name.
    Q_INVOKABLE [[nodiscard]] bool isHost(const QString &text) const;

    Q_INVOKABLE [[nodiscard]] PasswordFault newPasswordFault(const QString &password,
                                                             const QString &confirmation) const;
};
