// The passwords of a command (for logins, or for the account that it creates), and passphrases of lists.
#pragma once

#include "commandline/arguments.h"
#include "commandline/terminal.h"

namespace commandline {

/// A password, or the reason why there is none.
struct Secret
{
    QString password;
    QString error; ///< in English; empty on success
};

enum class SecretPurpose
{
    Login,
    NewSecret, ///< the prompt asks twice; different inputs are an error
};

/// Reads the password from the first source that exists: with "--password-file" the first line of that file
/// (UTF-8, up to 1,024 bytes), otherwise the environment variable CONFIGTOOLS_PASSWORD if it is not empty,
/// otherwise a prompt on the terminal. An unreadable file, an empty or longer first line, an empty input, and
/// a process without a terminal are errors. A password is never an argument: all users of the host can read
/// the arguments of a process. The prompt blocks.
[[nodiscard]] Secret readPassword(const Arguments &arguments, const Terminal &terminal,
                                  SecretPurpose purpose);

/// Reads the passphrase of an encrypted device list in the same way: with "--passphrase-file", otherwise from
/// the environment variable CONFIGTOOLS_PASSPHRASE, and if that is empty from a prompt. A new one
/// (SecretPurpose::NewSecret) with fewer than shortestPassphrase characters is an error.
[[nodiscard]] Secret readPassphrase(const Arguments &arguments, const Terminal &terminal,
                                    SecretPurpose purpose);

/// Whether readPassword() would use a file or the environment, not the prompt.
[[nodiscard]] bool hasPassword(const Arguments &arguments);

} // namespace commandline
