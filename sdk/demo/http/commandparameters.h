// The parameters of a command below /cgi-bin/.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace sdk::demo {

/// Reads the parameters one by one. The first complaint stays; after it the values that are read mean
/// nothing.
class CommandParameters
{
public:
    /// `query` is what stands behind the question mark: "a=1&b=%E5%A4%A7".
    explicit CommandParameters(const QByteArray &query);

    [[nodiscard]] bool has(const QString &name) const;

    /// Nothing when the command does not have that parameter.
    std::optional<QString> text(const QString &name);
    int number(const QString &name, int minimum, int maximum, int fallback);

    /// The place of the parameter's text in `choices`, `fallback` without it.
    int choice(const QString &name, const QStringList &choices, int fallback);

    /// Complains about parameters that nobody has asked for: they would have no effect, and are most likely
    /// a slip.
    void rejectOthers();

    void complain(const QString &sentence);

    /// The first complaint, empty while there is none.
    [[nodiscard]] QString error() const { return m_error; }

private:
    QList<std::pair<QString, QString>> m_parameters;
    QStringList m_asked;
    QString m_error;
};

} // namespace sdk::demo
