// The protection of the passwords in an exported device list.
#pragma once

#include <QString>

/// Minimum length of a new passphrase in characters.
inline constexpr qsizetype shortestPassphrase = 8;

/// The suffix of encrypted device lists, without the dot.
inline constexpr QLatin1StringView encryptedListSuffix("devlist");

/// Passwords in an exported device list. The default is the usual list with readable passwords.
struct ListProtection
{
    bool leavesOutPasswords = false; ///< the password column is empty
    /// The list is encrypted with this passphrase. Must be empty for all formats except encrypted lists, and
    /// must have at least shortestPassphrase characters for these.
    QString passphrase = {};
};
