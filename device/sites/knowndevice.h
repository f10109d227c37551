// A device that an earlier search has found.
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// Keys of table rows with values of the site. Rows of DeviceStore do not have them.
namespace SiteKey {
inline constexpr QLatin1StringView group("group");       ///< text: group of the device; missing for none
inline constexpr QLatin1StringView presence("presence"); ///< int: Presence; missing for Presence::Listed
/// Text in the user's format, of absent devices only: the last time that a search has found the device.
/// Missing if unknown.
inline constexpr QLatin1StringView lastSeen("lastSeen");
} // namespace SiteKey

/// The relation between the last list of the site and the present one.
enum class Presence
{
    Listed,  ///< the device is listed; it was known before, or no device was
    New,     ///< listed, but not known before the last search
    Waiting, ///< known, but not found yet by the present list
    Missing, ///< known, but a complete search did not find it
};

/// Whether the device of a table row is not in the device list, so that nothing can be done with it.
[[nodiscard]] bool isAbsent(const QJsonObject &row);

/// What a site stores about a device. Never a password.
struct KnownDevice
{
    static constexpr qsizetype longestGroup = 32; ///< characters

    QString identity; ///< name of a row without a MAC, see rowName(); empty with a MAC
    QString mac;      ///< empty if the device has not reported one
    QString ipport;
    QString name;
    QString type;
    QString model;
    QString version; ///< as in a row, "v" in front
    QString serial;  ///< serial number; empty if unknown
    QString group;   ///< empty for none
    QString note;    ///< of the user; only in files that are saved for others
    int httpPort = 0;
    bool isInitialised = true;
    bool isIPv6 = false;
    QDateTime lastSeen; ///< in UTC; invalid if unknown

    /// Identifies the device in its site: by its MAC, whatever its spelling, otherwise by the name of its
    /// row. Rows of the IPv6 list never have the key of a row of the IPv4 list.
    [[nodiscard]] QString key() const;

    /// A row for a table, with the keys of DeviceRowKey that are known, and those of SiteKey.
    [[nodiscard]] QJsonObject row(Presence presence) const;

    /// Whether everything except the time is equal.
    [[nodiscard]] bool isSameAs(const KnownDevice &other) const;
};

/// The values that KnownDevice::key() of the device of a row may have, the present one first. A device that
/// was known before it reported its MAC has the name of its row.
[[nodiscard]] QStringList knownKeys(const QJsonObject &row, bool isIPv6);

/// The device of a row of the list. It has no serial number, group, note and time.
[[nodiscard]] KnownDevice knownDevice(const QJsonObject &row, bool isIPv6);

/// A site: the devices of one installation.
struct Site
{
    QString name; ///< empty while the site was not saved
    QList<KnownDevice> devices;
};
