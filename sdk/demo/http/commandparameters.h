// The parameters of a command below /cgi-bin/.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace sdk::demo {

/// Reads the parameters one by one by their names. Only the first error is kept. The caller checks error()
/// when it has read all parameters: if it is not empty, the read values are meaningless. Used by one thread.
class CommandParameters
{
public:
    /// `query` is the part after the question mark: "a=1&b=%E5%A4%A7". Invalid encoding, control characters
    /// and a repeated parameter are errors.
    explicit CommandParameters(const QByteArray &query);

    /// Whether the command has the parameter. This does not count as reading it.
    [[nodiscard]] bool has(const QString &name) const;

    /// The decoded value; nullopt if the command does not have that parameter.
    std::optional<QString> text(const QString &name);

    /// The parameter's value as a number; `fallback` without the parameter. A value that is not a whole
    /// number from `minimum` to `maximum` is an error, and returns `fallback`.
    int number(const QString &name, int minimum, int maximum, int fallback);

    /// The index of the parameter's value in `choices`; `fallback` without the parameter. Any other value is
    /// an error, and returns `fallback`.
    int choice(const QString &name, const QStringList &choices, int fallback);

    /// Reports an error if there are parameters that were not read: they would have no effect and are
    /// probably typing errors. To be called after all other calls.
    void rejectOthers();

    /// Sets the error, unless there is one. The sentence is sent to the client.
    void reportError(const QString &sentence);

    /// The first error, an English sentence; empty without one.
    [[nodiscard]] QString error() const { return m_error; }

private:
    QList<std::pair<QString, QString>> m_parameters;
    QStringList m_asked;
    QString m_error;
};

} // namespace sdk::demo
