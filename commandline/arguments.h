// The options and operands of commands, such as "search --filter IPC".
#pragma once

#include <QHash>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <vector>

namespace commandline {

struct CommandContext;

/// A kind of option, which one or several commands accept.
struct Option
{
    enum class Value
    {
        None,     ///< a flag
        Required, ///< a missing or empty value is an error
        Optional, ///< the value may be missing
    };

    QLatin1StringView name; ///< without "--"
    Value value = Value::None;
    QLatin1StringView placeholder; ///< stands for the value in the help, as in "FILE"; empty without a value
    QLatin1StringView help;        ///< in English; further lines are separated by '\n'
};

/// One entry of the table of all commands.
struct Command
{
    QLatin1StringView name;
    QLatin1StringView operands;             ///< as the help shows them; empty if the command has none
    QLatin1StringView summary;              ///< one sentence in English without a full stop
    QLatin1StringView help;                 ///< further lines in English; may be empty
    std::vector<QLatin1StringView> options; ///< names of the accepted options, in the order of the help
    int minimumOperands = 0;
    int maximumOperands = 0;                       ///< negative: no limit
    bool needsFonts = false;                       ///< draws text: needs a QGuiApplication
    int (*run)(CommandContext &context) = nullptr; ///< runs the command to its end, returns the exit code
};

/// The arguments after the name of a command, split into options and operands.
struct Arguments
{
    /// Values by name, without "--". The value of a flag, or one not given, is empty. Of an option that is
    /// given twice, the last value.
    QHash<QString, QString> options;
    QStringList operands; ///< the arguments that are neither options nor their values, in order
    QString error;        ///< describes the first invalid argument in English; empty for none

    /// Whether the option is given, with or without a value.
    [[nodiscard]] bool has(QLatin1StringView option) const { return options.contains(option); }
    /// The value of the option; `otherwise` if the option is not given at all.
    [[nodiscard]] QString value(QLatin1StringView option, const QString &otherwise = {}) const
    {
        return options.value(option, otherwise);
    }

    /// Splits `arguments`, those after the name of `command`. A value is given as "--name value", if it does
    /// not start with "-" or is "-" alone, or as "--name=value"; an option may also start with one "-", and
    /// "-h" is "--help". "-" where no value is expected, and everything after "--", is an operand. An option
    /// that the command does not accept is an error, and so is a wrong number of operands, except with
    /// "--help". Values are not checked. An error never quotes a value, which may be a password in the wrong
    /// place. With an error, the other members are incomplete.
    [[nodiscard]] static Arguments parse(const Command &command, const QStringList &arguments);
};

/// The options of all commands. Each command lists those that it accepts.
[[nodiscard]] const std::vector<Option> &knownOptions();

/// The option with this name; null if there is none.
[[nodiscard]] const Option *findOption(QStringView name);

} // namespace commandline
