// The password of a command.
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
    NewAccount, ///< a prompt asks twice
};

/// The password from the file of "--password-file", else from the environment variable CONFIGTOOLS_PASSWORD,
/// else from the prompt. A password is never an argument: all users of the host can read the arguments of a
/// process.
[[nodiscard]] Secret readPassword(const Arguments &arguments, const Terminal &terminal,
                                  SecretPurpose purpose);

/// Whether readPassword() would read a file or the environment.
[[nodiscard]] bool hasPassword(const Arguments &arguments);

} // namespace commandline
