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
        None,
        Required,
        Optional, ///< the next argument, unless that is an option or there is none
    };

    QLatin1StringView name; ///< without "--"
    Value value = Value::None;
    QLatin1StringView placeholder; ///< of the value in the help
    QLatin1StringView help;        ///< in English; further lines are separated by '\n'
};

/// A command, as the table of commands() describes it.
struct Command
{
    QLatin1StringView name;
    QLatin1StringView operands; ///< in the help; empty if the command has none
    QLatin1StringView summary;  ///< one sentence in English without a full stop
    QLatin1StringView help;     ///< further lines; may be empty
    std::vector<QLatin1StringView> options;
    int minimumOperands = 0;
    int maximumOperands = 0; ///< negative: no limit
    int (*run)(CommandContext &context) = nullptr;
};

/// The arguments after the name of a command, split into options and operands.
struct Arguments
{
    QHash<QString, QString> options; ///< by name; a flag and a missing optional value are empty
    QStringList operands;
    QString error; ///< describes the first invalid argument in English; empty for none

    [[nodiscard]] bool has(QLatin1StringView option) const { return options.contains(option); }
    [[nodiscard]] QString value(QLatin1StringView option, const QString &otherwise = {}) const
    {
        return options.value(option, otherwise);
    }

    /// Splits the arguments of `command`. Values are "--name value" or "--name=value". Everything after "--"
    /// is an operand. An error never quotes a value, which may be a password in the wrong place.
    [[nodiscard]] static Arguments parse(const Command &command, const QStringList &arguments);
};

/// All options, by name. Each command lists those that it accepts.
[[nodiscard]] const std::vector<Option> &knownOptions();

/// The option with this name; null if there is none.
[[nodiscard]] const Option *findOption(QStringView name);

} // namespace commandline
