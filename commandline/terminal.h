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
    /// Shows the prompt and reads a line from the terminal without showing it. nullopt if there is no
    /// terminal or its input ends.
    using SecretReader = std::function<std::optional<QString>(const QString &prompt)>;

    /// Uses the streams of the process. Secrets are read from the terminal of the process (/dev/tty), also if
    /// standard input is redirected; on Unix only. Bytes of a secret after 1,024 are dropped. Ctrl+C at the
    /// prompt gives nullopt and raises SIGINT.
    Terminal();

    /// Uses other streams, which must be open and outlive this object. `readSecret` may be empty.
    Terminal(QIODevice &results, QIODevice &messages, SecretReader readSecret);

    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Sets whether progress is suppressed. Errors are always written.
    void setQuiet(bool quiet) { m_isQuiet = quiet; }

    /// Writes bytes to standard output, unchanged. After a failure hasLostResults() is true.
    void writeResult(const QByteArray &bytes);

    /// Whether a result could not be written, for example because the disk is full.
    [[nodiscard]] bool hasLostResults() const { return m_hasLostResults; }

    // These functions write a line to standard error, in the encoding of the system, and add its line break.
    // Failures are ignored. Texts of devices must be converted by terminalText() before.
    void writeProgress(const QString &line); ///< writes nothing if progress is suppressed
    void writeError(const QString &line);

    /// Shows the prompt and reads a secret with the SecretReader. Blocks. nullopt as the reader, and without
    /// one.
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
