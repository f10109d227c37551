// Standard output, standard error and the prompt of a command.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace commandline {

/// Results are written to standard output, progress and errors to standard error. Main thread.
class Terminal
{
public:
    /// Reads a line from the terminal without showing it. Nullopt if there is no terminal or its input ends.
    using SecretReader = std::function<std::optional<QString>(const QString &prompt)>;

    /// The streams of the process.
    Terminal();

    /// Other streams, which must outlive this object.
    Terminal(QIODevice &results, QIODevice &messages, SecretReader readSecret);

    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    void setQuiet(bool quiet) { m_isQuiet = quiet; }

    void writeResult(const QByteArray &bytes);

    /// Whether a result could not be written, for example because the disk is full.
    [[nodiscard]] bool hasLostResults() const { return m_hasLostResults; }

    /// A line on standard error, without its line break.
    void writeProgress(const QString &line); ///< nothing if quiet
    void writeError(const QString &line);

    [[nodiscard]] std::optional<QString> readSecret(const QString &prompt) const;

private:
    const std::unique_ptr<QIODevice> m_ownResults;
    const std::unique_ptr<QIODevice> m_ownMessages;
    QIODevice &m_results;
    QIODevice &m_messages;
    const SecretReader m_readSecret;
    bool m_isQuiet = false;
    bool m_hasLostResults = false;
};

/// A text of a device for a terminal: control characters, which could change the terminal, become spaces.
[[nodiscard]] QString terminalText(const QString &text);

} // namespace commandline
