#include "commandline/arguments.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

constexpr QLatin1StringView optionPrefix("--");

const Option *acceptedOption(const Command &command, QStringView name)
{
    const bool isAccepted =
        std::find(command.options.cbegin(), command.options.cend(), name) != command.options.cend();
    return isAccepted ? findOption(name) : nullptr;
}

/// A secret as an argument would be readable by every user of the host. Returns how to give it instead; empty
/// if the option is not one of a secret.
QString objectionToSecret(QStringView name)
{
    if (name == "password"_L1 || name == "new-password"_L1)
        return u"a password is not accepted as an argument: use --password-file, the "
               "environment variable CONFIGTOOLS_PASSWORD, or the prompt"_s;
    if (name == "passphrase"_L1)
        return u"a passphrase is not accepted as an argument: use --passphrase-file, the "
               "environment variable CONFIGTOOLS_PASSPHRASE, or the prompt"_s;
    return {};
}

QString operandError(const Command &command, qsizetype count)
{
    if (count < command.minimumOperands)
        return u"%1 needs: %2"_s.arg(command.name, command.operands);
    if (command.maximumOperands >= 0 && count > command.maximumOperands)
        return u"%1 has too many arguments"_s.arg(command.name);
    return {};
}

} // namespace

const std::vector<Option> &knownOptions()
{
    using enum Option::Value;
    static const std::vector<Option> options = {
        {"demo"_L1, Optional, "SCENE"_L1,
         "work on a simulated site instead of the network. Each command starts with the\n"
         "original state of the site"_L1},
        {"no-demo"_L1, None, {}, "work on the devices of the network, as without --demo"_L1},
        {"range"_L1, Required, "FIRST-LAST"_L1, "also search these IPv4 addresses"_L1},
        {"no-local"_L1, None, {}, "do not search the local segment"_L1},
        {"list"_L1, Required, "FILE"_L1,
         "use the devices of a device list (.csv, .xml, .xlsx, .devlist) instead of a search"_L1},
        {"devices"_L1, Required, "WHICH"_L1,
         "\"all\", or addresses, address:port or MACs, separated by commas; @FILE reads\n"
         "them from a file with one on each line"_L1},
        {"filter"_L1, Required, "TEXT"_L1,
         "only devices whose type, model, address, MAC, version or name contains TEXT"_L1},
        {"user"_L1, Required, "NAME"_L1, "the user name of the devices (admin)"_L1},
        {"password-file"_L1, Required, "FILE"_L1, "the first line of FILE is the password"_L1},
        {"passphrase-file"_L1, Required, "FILE"_L1,
         "the first line of FILE is the passphrase of an encrypted device list"_L1},
        {"without-passwords"_L1, None, {}, "leave the passwords out of the device list"_L1},
        {"format"_L1, Required, "FORMAT"_L1, "of the results: table (the default), json or csv"_L1},
        {"quiet"_L1, None, {}, "no progress on standard error"_L1},
        {"dry-run"_L1, None, {}, "print the planned changes and send none of them"_L1},
        {"start"_L1, Required, "ADDRESS"_L1,
         "of the first device; each further one gets the next higher address"_L1},
        {"map"_L1, Required, "FILE"_L1,
         "lines of a device (MAC or address) and its new address, separated by a comma"_L1},
        {"dhcp"_L1, None, {}, "the devices get their addresses by DHCP"_L1},
        {"mask"_L1, Required, "MASK"_L1, "subnet mask (255.255.255.0)"_L1},
        {"gateway"_L1, Required, "ADDRESS"_L1, "gateway (the first address of the /24 block)"_L1},
        {"force"_L1, None, {}, "also with warnings"_L1},
        {"channel"_L1, Required, "NUMBER"_L1, "of a recorder, from 1 (1)"_L1},
        {"output"_L1, Required, "FOLDER"_L1, "where files are saved (the working directory)"_L1},
        {"file"_L1, Required, "FILE"_L1, "firmware file for all devices"_L1},
        {"document"_L1, Required, "WORKBOOK"_L1,
         "upgrade document with devices, accounts and firmware files; it receives the results"_L1},
        {"workbook"_L1, Required, "WORKBOOK"_L1,
         "commands with devices and accounts; it receives the results"_L1},
        {"name"_L1, Required, "TEXT"_L1, "name of the site (Site), also in the names of the files"_L1},
        {"installer"_L1, Required, "TEXT"_L1, "name of the installer, on the first page"_L1},
        {"files"_L1, Required, "KINDS"_L1, "pdf, xlsx or pdf,xlsx (pdf,xlsx)"_L1},
        {"visit"_L1, Required, "FILE"_L1,
         "the changes of a visit: a command that changes devices adds its changes to FILE, and\n"
         "report lists them"_L1},
        {"help"_L1, None, {}, "print this text and end"_L1},
    };
    return options;
}

const Option *findOption(QStringView name)
{
    const auto &options = knownOptions();
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [name](const Option &option) { return option.name == name; });
    return found == options.cend() ? nullptr : &*found;
}

Arguments Arguments::parse(const Command &command, const QStringList &arguments)
{
    Arguments parsed;
    bool takesOptions = true;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString &argument = arguments.at(index);
        if (!takesOptions || !argument.startsWith(u'-') || argument == "-"_L1) {
            parsed.operands.append(argument);
            continue;
        }
        if (argument == optionPrefix) {
            takesOptions = false;
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const bool hasValue = equals >= 0;
        const QString given = hasValue ? argument.left(equals) : argument;
        const QString name =
            given == "-h"_L1 ? u"help"_s : given.sliced(given.startsWith(optionPrefix) ? 2 : 1);
        const Option *option = acceptedOption(command, name);
        parsed.error = objectionToSecret(name);
        if (!parsed.error.isEmpty())
            return parsed;
        if (!option) {
            parsed.error = u"%1 has no option %2"_s.arg(command.name, given);
            return parsed;
        }
        const bool isFollowed = index + 1 < arguments.size() && (!arguments.at(index + 1).startsWith(u'-') ||
                                                                 arguments.at(index + 1) == "-"_L1);
        QString value = hasValue ? argument.sliced(equals + 1) : QString();
        if (option->value == Option::Value::None && hasValue) {
            parsed.error = u"--%1 has no value"_s.arg(name);
            return parsed;
        }
        if (option->value != Option::Value::None && !hasValue && isFollowed)
            value = arguments.at(++index);
        if (option->value == Option::Value::Required && value.isEmpty()) {
            parsed.error = u"--%1 needs %2"_s.arg(name, option->placeholder);
            return parsed;
        }
        parsed.options.insert(name, value);
    }
    if (!parsed.has("help"_L1))
        parsed.error = operandError(command, parsed.operands.size());
    return parsed;
}

} // namespace commandline
