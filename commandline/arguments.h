// The arguments of a command.
#pragma once

#include <QHash>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <vector>

namespace commandline {

struct CommandContext;

/// An option of one or several commands.
struct Option
{
    enum class Value
    {
        None,     ///< a flag
        Required, ///< a missing or empty value is an error
        Optional, ///< the next argument, unless that is an option or there is none
    };

    QLatin1StringView name; ///< without "--"
    Value value = Value::None;
    QLatin1StringView placeholder; ///< of the value in the help; empty without a value
    QLatin1StringView help;        ///< in English; further lines are separated by '\n'
};

/// A command, as the table of commands() describes it.
struct Command
{
    QLatin1StringView name;
    QLatin1StringView operands;             ///< in the help; empty if the command has none
    QLatin1StringView summary;              ///< one sentence in English without a full stop
    QLatin1StringView help;                 ///< further lines in English; may be empty
    std::vector<QLatin1StringView> options; ///< names of the accepted options, in the order of the help
    int minimumOperands = 0;
    int maximumOperands = 0;                       ///< negative: no limit
    int (*run)(CommandContext &context) = nullptr; ///< see commandfunctions.h
};

/// The arguments after the name of a command, split into options and operands.
struct Arguments
{
    QHash<QString, QString> options; ///< values by name; the value of a flag, or one not given, is empty
    QStringList operands;
    QString error; ///< describes the first invalid argument in English; empty for none

    /// Whether the option is given, with or without a value.
    [[nodiscard]] bool has(QLatin1StringView option) const { return options.contains(option); }
    /// The value of the option; `otherwise` if the option is not given.
    [[nodiscard]] QString value(QLatin1StringView option, const QString &otherwise = {}) const
    {
        return options.value(option, otherwise);
    }

    /// Splits `arguments`, those after the name of `command`. Values are "--name value" or "--name=value"; an
    /// option may also start with one "-". "-" alone, and everything after "--", is an operand. The names of
    /// the options and the number of operands are checked, values are not. An error never quotes a value,
    /// which may be a password in the wrong place. With an error, the other members are incomplete.
    [[nodiscard]] static Arguments parse(const Command &command, const QStringList &arguments);
};

/// The options of all commands. Each command lists those that it accepts.
[[nodiscard]] const std::vector<Option> &knownOptions();

/// The option with this name; null if there is none.
[[nodiscard]] const Option *findOption(QStringView name);

} // namespace commandline
