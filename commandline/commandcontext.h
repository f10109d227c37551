// The objects that a command works with.
#pragma once

#include "cgi/cgiprocedure.h"
#include "commandline/arguments.h"
#include "commandline/exitcode.h"
#include "commandline/recordtable.h"
#include "commandline/terminal.h"
#include "device/accounts/accountchoice.h"
#include "device/batch/batches.h"
#include "device/registry/devicefactory.h"

#include <functional>
#include <memory>
#include <optional>

namespace commandline {

/// The objects that the application provides. They must outlive the command. The functions are called on the
/// main thread, each time the number is needed.
struct Surroundings
{
    CDeviceFactory &factory; ///< access to the device list and to the operations on devices
    BatchEngine &engine;     ///< worker threads of the batches
    CgiSurroundings cgi;     ///< for HTTP commands; the folder of outputFolder() replaces its own
    std::function<int()> parallelDevices;  ///< returns the maximum number of devices at the same time
    std::function<int()> parallelUpgrades; ///< returns the maximum number of upgrades at the same time

    /// The account of most devices of a simulated site, for commands without a password. nullopt without a
    /// site.
    std::optional<DeviceAccount> siteAccount = {};
};

/// The objects of the running command. They outlive this value. Main thread.
struct CommandContext
{
    const Arguments &arguments; ///< without an error; the values of options are not checked yet
    Terminal &terminal;
    const Surroundings &surroundings;
    CDeviceFactory &factory;                   ///< that of `surroundings`
    Batches &batches;                          ///< starts the batches of the command and owns them
    RecordFormat format = RecordFormat::Table; ///< of "--format"

    /// Writes an error text in English to standard error and returns `exitCode`.
    [[nodiscard]] int fail(ExitCode exitCode, const QString &text) const
    {
        terminal.writeError(text);
        return exitCode;
    }

    /// Writes results to standard output in the format of "--format".
    void print(const RecordTable &table) const { terminal.writeResult(table.text(format)); }

    /// Whether "--dry-run" is given: the command prints its plan and changes nothing.
    [[nodiscard]] bool isDryRun() const { return arguments.has(QLatin1StringView("dry-run")); }
};

} // namespace commandline
