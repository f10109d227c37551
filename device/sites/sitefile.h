// Files with the devices of a site.
#pragma once

#include "device/sites/knowndevice.h"

/// A site file is a JSON object with "format" ("configtools-site"), "version" (1), "name" and "devices", a
/// list of objects with the keys "identity", "mac", "address" (KnownDevice::ipport), "name", "type", "model",
/// "firmware", "serial", "group", "note", "httpPort", "initialised", "ipv6" and "lastSeen" (ISO 8601). It
/// contains no passwords.
namespace SiteFile {

inline constexpr int version = 1;
inline constexpr qint64 largestFile = 64LL * 1024 * 1024; ///< bytes; a longer file is refused
inline constexpr qsizetype mostDevices = 40'000;          ///< a file with more devices is refused
inline constexpr qsizetype longestText = 256;             ///< characters of a value
inline constexpr QLatin1StringView suffix("site");        ///< of the file name, without the dot

/// Result of reading a site file.
struct Contents
{
    Site site;
    QString refusal;         ///< why the file cannot be used, in the user's language; then `site` is empty
    bool isUnopened = false; ///< the file cannot be opened, so that its contents are unknown
};

/// Reads a site from text. A single value of a wrong type, text that is too long or has control characters,
/// HTTP port out of range, invalid time, device without MAC and identity, or second device with the same
/// KnownDevice::key() refuses the complete text, so that no device and no value is lost unnoticed. A missing
/// value is that of a new KnownDevice. Any thread.
[[nodiscard]] Contents read(const QByteArray &text);

/// Reads a site file. A path that is not a regular file is refused (isUnopened). Any thread.
[[nodiscard]] Contents readFile(const QString &path);

/// The site as text for read(). Texts that read() would refuse are shortened, and control characters become
/// spaces.
[[nodiscard]] QByteArray text(const Site &site);

} // namespace SiteFile
