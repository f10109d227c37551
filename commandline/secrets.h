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
    NewAccount, ///< the prompt asks twice; different answers are an error
};

/// Reads the password: with "--password-file" the first line of that file (up to 1,024 bytes), otherwise the
/// environment variable CONFIGTOOLS_PASSWORD, and if that is empty the answer to a prompt. An unreadable file
/// and an empty password are errors; no other source is tried then. A password is never an argument: all
/// users of the host can read the arguments of a process. The prompt blocks.
[[nodiscard]] Secret readPassword(const Arguments &arguments, const Terminal &terminal,
                                  SecretPurpose purpose);

/// Whether readPassword() would use a file or the environment, not the prompt.
[[nodiscard]] bool hasPassword(const Arguments &arguments);

} // namespace commandline
