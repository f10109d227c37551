// The exit codes of commands.
#pragma once

namespace commandline {

enum ExitCode : int
{
    AllDone = 0,
    SomeFailed = 1, ///< a device failed, was skipped or not found, or a file of the results was not written
    UsageError = 2, ///< the arguments are invalid or there is no password; nothing was changed
    /// The work could not start: no device library, scene, device or readable file, addresses in conflict, or
    /// an interruption. Also if the folder of a report cannot be used, or the file of an export could not be
    /// written.
    NothingDone = 3,
};

} // namespace commandline
