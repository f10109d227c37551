#include "commandline/commands.h"

#include "commandline/commandfunctions.h"
#include "commandline/settings.h"
#include "commandline/visitfile.h"
#include "report/visitchanges.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

using Options = std::vector<QLatin1StringView>;

/// `options` and those that every command has.
Options with(Options options)
{
    for (const QLatin1StringView name :
         {"format"_L1, "quiet"_L1, "range"_L1, "no-local"_L1, "demo"_L1, "no-demo"_L1, "help"_L1})
        options.push_back(name);
    return options;
}

/// The same, for commands that choose devices and log in.
Options withDevices(Options options)
{
    for (const QLatin1StringView name :
         {"devices"_L1, "filter"_L1, "list"_L1, "passphrase-file"_L1, "user"_L1, "password-file"_L1})
        options.push_back(name);
    return with(std::move(options));
}

constexpr QLatin1StringView
    commonHelp("Accounts: a device that has a stored account of the window uses it, the others use --user\n"
               "and the password. The password is read from --password-file, else from the environment\n"
               "variable CONFIGTOOLS_PASSWORD, else from the terminal. With --demo and without a password,\n"
               "the account of the simulated devices is used.\n");

constexpr QLatin1StringView
    exitCodes("Exit codes: 0 all done; 1 at least one device failed, was skipped or was not found;\n"
              "2 invalid arguments, nothing was changed; 3 the work could not start.\n");

QString optionLine(const Option &option)
{
    QString left = u"  --"_s + option.name;
    if (option.value == Option::Value::Required)
        left += u' ' + option.placeholder;
    else if (option.value == Option::Value::Optional)
        left += u" ["_s + option.placeholder + u']';
    constexpr int column = 26;
    const QString indent = u'\n' + QString(column, u' ');
    const bool isLong = left.size() > column - 2;
    return (isLong ? left + indent : left.leftJustified(column)) +
           QString(option.help).replace(u'\n', indent) + u'\n';
}

} // namespace

const std::vector<Command> &commands()
{
    static const std::vector<Command> table = {
        {.name = "search"_L1,
         .operands = {},
         .summary = "list the devices of the network"_L1,
         .help = {},
         .options = with({"devices"_L1, "filter"_L1, "list"_L1, "passphrase-file"_L1}),
         .run = &runSearch},
        {.name = "init"_L1,
         .operands = {},
         .summary = "initialise factory-new devices: create their first account"_L1,
         .help = "--user and the password are those of the new account. The password has 8 to 32\n"
                 "characters of at least two kinds. With --devices all, only the devices that are not\n"
                 "initialised take part.\n"_L1,
         .options =
             with({"devices"_L1, "filter"_L1, "user"_L1, "password-file"_L1, "visit"_L1, "dry-run"_L1}),
         .run = &runInit},
        {.name = "set-address"_L1,
         .operands = {},
         .summary = "change the addresses of devices"_L1,
         .help = "Either --start, --map or --dhcp. No device gets an address that another device of the\n"
                 "command still has. Warnings, such as an address of another device, end the command\n"
                 "before the first change, unless --force is given.\n"_L1,
         .options = withDevices({"start"_L1, "map"_L1, "dhcp"_L1, "mask"_L1, "gateway"_L1, "force"_L1,
                                 "visit"_L1, "dry-run"_L1}),
         .run = &runSetAddress},
        {.name = "get"_L1,
         .operands = "encode|image|system [SETTING ...]"_L1,
         .summary = "print settings of devices"_L1,
         .help = "Without SETTING, all settings of the subject are printed.\n"_L1,
         .options = withDevices({"channel"_L1}),
         .minimumOperands = 1,
         .maximumOperands = -1,
         .run = &runGet},
        {.name = "set"_L1,
         .operands = "encode|image|system SETTING=VALUE ..."_L1,
         .summary = "change settings of devices"_L1,
         .help = {},
         .options = withDevices({"channel"_L1, "visit"_L1, "dry-run"_L1}),
         .minimumOperands = 2,
         .maximumOperands = -1,
         .run = &runSet},
        {.name = "cgi"_L1,
         .operands = "[COMMAND]"_L1,
         .summary = "send a CGI command, or those of a workbook"_L1,
         .help = "COMMAND is the path with its query, as in \"/cgi-bin/device\".\n"
                 "\"-\" reads it from standard input, for commands that contain a secret. Images and\n"
                 "recordings are saved to --output. An accepted command reaches its device twice.\n"_L1,
         .options = withDevices({"workbook"_L1, "output"_L1, "visit"_L1, "dry-run"_L1}),
         .maximumOperands = 1,
         .run = &runCgi},
        {.name = "snapshot"_L1,
         .operands = {},
         .summary = "save an image of each channel"_L1,
         .help =
             "The files are \"<address>_<port>/<number>.jpg\" in --output; the number of channel 1 is 0.\n"
             "Channels without a camera are skipped.\n"_L1,
         .options = withDevices({"channel"_L1, "output"_L1}),
         .run = &runSnapshot},
        {.name = "export"_L1,
         .operands = "FILE"_L1,
         .summary = "write a device list"_L1,
         .help = "The ending of FILE selects the format: .csv, .xml or .xlsx, or .devlist for an encrypted\n"
                 "list. The file contains the password of the command, if one is given, in readable form\n"
                 "unless the list is encrypted. The passphrase of an encrypted list is read from\n"
                 "--passphrase-file, else from the environment variable CONFIGTOOLS_PASSPHRASE, else from\n"
                 "the terminal; it has at least 8 characters.\n"_L1,
         .options = withDevices({"without-passwords"_L1}),
         .minimumOperands = 1,
         .maximumOperands = 1,
         .run = &runExport},
        {.name = "import"_L1,
         .operands = "FILE"_L1,
         .summary = "log in to the devices of a device list and print the results"_L1,
         .help = "Other commands use the devices of a list with --list. The passphrase of an encrypted list\n"
                 "(.devlist) is read from --passphrase-file, else from the environment variable\n"
                 "CONFIGTOOLS_PASSPHRASE, else from the terminal.\n"_L1,
         .options = with({"passphrase-file"_L1}),
         .minimumOperands = 1,
         .maximumOperands = 1,
         .run = &runImport},
        {.name = "upgrade"_L1,
         .operands = {},
         .summary = "upgrade the firmware of devices"_L1,
         .help = "Either --file, which is checked against each device, or --document.\n"_L1,
         .options = withDevices({"file"_L1, "document"_L1, "visit"_L1, "dry-run"_L1}),
         .run = &runUpgrade},
        {.name = "report"_L1,
         .operands = {},
         .summary = "write a report of the site as PDF and workbook"_L1,
         .help =
             "The report lists each device with an image, its settings and conspicuous findings, and the\n"
             "changes in the file of --visit. The files are \"<name>-<date>-<time>.pdf\" and \".xlsx\" in\n"
             "--output. An interrupted command writes no file.\n"_L1,
         .options = withDevices({"output"_L1, "name"_L1, "installer"_L1, "files"_L1, "visit"_L1}),
         .needsFonts = true,
         .run = &runReport},
    };
    return table;
}

const Command *findCommand(QStringView name)
{
    const auto &table = commands();
    const auto found = std::find_if(table.cbegin(), table.cend(),
                                    [name](const Command &command) { return command.name == name; });
    return found == table.cend() ? nullptr : &*found;
}

QString overview(const QString &program)
{
    QString text = u"Commands, which need no display: %1 COMMAND [OPTIONS]\n\n"_s.arg(program);
    for (const Command &command : commands())
        text += u"  "_s + QString(command.name).leftJustified(14) + command.summary + u'\n';
    text += u"\nEach command accepts --demo. \"%1 help COMMAND\" explains a command.\n"_s.arg(program);
    return text + exitCodes;
}

QString helpOf(const Command &command, const QString &program)
{
    QString text = u"Usage: %1 %2"_s.arg(program, command.name);
    if (!command.operands.isEmpty())
        text += u' ' + command.operands;
    text += u" [OPTIONS]\n\n%1.\n"_s.arg(
        QString(command.summary).replace(0, 1, QChar(command.summary.front()).toUpper()));
    text += command.help;
    if (command.run == &runGet || command.run == &runSet)
        text += u'\n' + settingsHelp(command.run == &runSet);
    text += u'\n';
    for (const QLatin1StringView name : command.options) {
        if (const Option *option = findOption(QString(name)))
            text += optionLine(*option);
    }
    const bool hasAccount = std::find(command.options.cbegin(), command.options.cend(), "password-file"_L1) !=
                            command.options.cend();
    if (hasAccount && command.run != &runInit)
        text += u'\n' + commonHelp;
    return text + u'\n' + exitCodes;
}

int run(const Command &command, const Arguments &arguments, Terminal &terminal,
        const Surroundings &surroundings)
{
    terminal.setQuiet(arguments.has("quiet"_L1));
    const std::optional<RecordFormat> format = recordFormat(arguments.value("format"_L1, u"table"_s));
    Batches batches(surroundings.factory, surroundings.engine, surroundings.parallelDevices);
    CommandContext context = {.arguments = arguments,
                              .terminal = terminal,
                              .surroundings = surroundings,
                              .factory = surroundings.factory,
                              .batches = batches,
                              .format = format.value_or(RecordFormat::Table)};
    if (!format)
        return context.fail(UsageError, u"--format is table, json or csv"_s);
    VisitFile visit(arguments.value("visit"_L1));
    if (command.run != &runReport && !context.isDryRun() && !visit.isWritable())
        return context.fail(UsageError, visit.error());
    VisitChanges changes(surroundings.factory, batches, VisitChanges::ImagesBefore::None);
    const int exitCode = command.run(context);
    if (!visit.append(changes.changes()))
        return context.fail(SomeFailed, visit.error());
    if (terminal.hasLostResults())
        return context.fail(SomeFailed, u"The results could not be written completely."_s);
    return exitCode;
}

} // namespace commandline
