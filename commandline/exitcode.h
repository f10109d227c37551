// The exit codes of commands.
#pragma once

namespace commandline {

enum ExitCode : int
{
    AllDone = 0,
    SomeFailed = 1, ///< at least one device failed, was skipped or not found, or a result was not written
    UsageError = 2, ///< the arguments are invalid or there is no password; nothing was changed
    /// The work could not start: no device library, scene, device or readable file, addresses in conflict, or
    /// an interruption. Also if the file of an export or report could not be written.
    NothingDone = 3,
};

} // namespace commandline
