// The parameters of a command below /cgi-bin/.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace sdk::demo {

/// Reads the parameters one by one. The first error is kept; values that are read after it are meaningless.
class CommandParameters
{
public:
    /// `query` is the part after the question mark: "a=1&b=%E5%A4%A7".
    explicit CommandParameters(const QByteArray &query);

    [[nodiscard]] bool has(const QString &name) const;

    /// nullopt if the command does not have that parameter.
    std::optional<QString> text(const QString &name);
    int number(const QString &name, int minimum, int maximum, int fallback);

    /// The index of the parameter's value in `choices`, `fallback` without the parameter.
    int choice(const QString &name, const QStringList &choices, int fallback);

    /// Reports an error for parameters that were not read: they would have no effect and are probably a
    /// typing error.
    void rejectOthers();

    void reportError(const QString &sentence);

    /// The first error; empty without one.
    [[nodiscard]] QString error() const { return m_error; }

private:
    QList<std::pair<QString, QString>> m_parameters;
    QStringList m_asked;
    QString m_error;
};

} // namespace sdk::demo
