// Standard output, standard error and the prompt of a command.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace commandline {

/// Writes results to standard output, progress and errors to standard error, and reads secrets from the
/// terminal. Main thread.
class Terminal
{
public:
    /// Reads a line from the terminal without showing it. Nullopt if there is no terminal or its input ends.
    using SecretReader = std::function<std::optional<QString>(const QString &prompt)>;

    /// Uses the streams of the process. Secrets can be read on Unix only.
    Terminal();

    /// Uses other streams, which must be open and outlive this object. `readSecret` may be empty.
    Terminal(QIODevice &results, QIODevice &messages, SecretReader readSecret);

    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Sets whether progress is suppressed. Errors are always written.
    void setQuiet(bool quiet) { m_isQuiet = quiet; }

    /// Writes bytes to standard output, unchanged. A failure sets hasLostResults().
    void writeResult(const QByteArray &bytes);

    /// Whether a result could not be written, for example because the disk is full.
    [[nodiscard]] bool hasLostResults() const { return m_hasLostResults; }

    // These functions write a line to standard error and add its line break. Failures are ignored.
    void writeProgress(const QString &line); ///< writes nothing if quiet
    void writeError(const QString &line);

    /// Shows the prompt and reads a secret as SecretReader. Blocks. nullopt without a reader.
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

/// The text of a device for output on a terminal: control and format characters, which could change the
/// terminal, become spaces.
[[nodiscard]] QString terminalText(const QString &text);

} // namespace commandline
