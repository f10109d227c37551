// The exit codes of commands.
#pragma once

namespace commandline {

enum ExitCode : int
{
    AllDone = 0,
    SomeFailed = 1,  ///< at least one device failed, was skipped or not found, or a result was not written
    UsageError = 2,  ///< the arguments are invalid or there is no password; nothing was changed
    NothingDone = 3, ///< the work could not start: no device library, scene, device or readable file
};

} // namespace commandline
