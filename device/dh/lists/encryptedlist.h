// Device lists that are encrypted with a passphrase. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// The format of an encrypted list. All numbers are big-endian:
///
/// | bytes | content |
/// |---|---|
/// | 7 | "DEVLIST" |
/// | 1 | version, 1 |
/// | 1 | derivation of the key, 1: PBKDF2 with HMAC-SHA-256 |
/// | 1 | cipher, 1: AES-256-GCM |
/// | 2 | 0 |
/// | 4 | iterations of the derivation |
/// | 16 | salt |
/// | 12 | nonce |
/// | n | encrypted lines: JSON in UTF-8, see encryptedListOf() |
/// | 16 | authentication tag of the header and the lines |
namespace EncryptedList {
inline constexpr std::uint32_t iterations = 600'000; ///< of a new list
/// Limits of the iterations of a list that is read. The upper one bounds the time of a derivation to a few
/// seconds.
inline constexpr std::uint32_t leastIterations = 600'000;
inline constexpr std::uint32_t mostIterations = 5'000'000;
inline constexpr qsizetype headerSize = 44;
inline constexpr qsizetype tagSize = 16;
} // namespace EncryptedList

/// The list as an encrypted file with a new random salt and nonce. The passphrase is normalised (NFC), so
/// that it may be typed on different systems. The plain text is {"devices": [[field, ...], ...]} with the
/// fields in the order of ListColumn. Empty if the cipher or the generation of random bytes fails. Takes
/// about half a second.
[[nodiscard]] QByteArray encryptedListOf(const std::vector<DeviceListLine> &lines, const QString &passphrase);

/// Reads an encrypted list. Errors are in DeviceListContents::refusal. The header is checked before the key
/// is derived. A wrong passphrase cannot be distinguished from changed encrypted lines: both have the same
/// refusal and set DeviceListContents::isPassphraseRefused.
[[nodiscard]] DeviceListContents readEncryptedList(const QByteArray &file, const QString &passphrase);
