#include "commandline/terminal.h"

#include <QFile>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace commandline {

namespace {

std::unique_ptr<QIODevice> openStream(FILE *stream)
{
    auto file = std::make_unique<QFile>();
    // Unbuffered, so that a failed write is reported by the write itself.
    if (!file->open(stream, QIODevice::WriteOnly | QIODevice::Unbuffered))
        qWarning("A standard stream cannot be opened.");
    return file;
}

#ifdef Q_OS_UNIX

constexpr qsizetype longestSecret = 1024;
constexpr char interruption = '\3'; // the character of Ctrl+C

/// Reads a line of the terminal of the process with the echo switched off.
std::optional<QString> readHiddenLine(const QString &prompt)
{
    const int file = ::open("/dev/tty", O_RDWR | O_CLOEXEC);
    if (file < 0)
        return std::nullopt;
    QFile terminal;
    termios shown = {};
    if (tcgetattr(file, &shown) != 0 ||
        !terminal.open(file, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(file);
        return std::nullopt;
    }
    // Ctrl+C ends the line instead of the process, which would leave the echo switched off.
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
    hidden.c_cc[VEOL] = interruption;
    if (tcsetattr(file, TCSAFLUSH, &hidden) != 0)
        return std::nullopt;
    terminal.write(prompt.toLocal8Bit());
    QByteArray line;
    char character = 0;
    bool isComplete = false;
    while (!isComplete && ::read(file, &character, 1) == 1) {
        isComplete = character == '\n';
        if (character == interruption)
            break;
        if (!isComplete && line.size() < longestSecret)
            line.append(character);
    }
    tcsetattr(file, TCSAFLUSH, &shown);
    terminal.write("\n");
    if (character == interruption)
        std::raise(SIGINT);
    return isComplete ? std::optional(QString::fromLocal8Bit(line)) : std::nullopt;
}

#else

std::optional<QString> readHiddenLine(const QString & /*prompt*/)
{
    return std::nullopt;
}

#endif

} // namespace

Terminal::Terminal()
    : m_ownResults(openStream(stdout)), m_ownMessages(openStream(stderr)), m_results(*m_ownResults),
      m_messages(*m_ownMessages), m_readSecret(&readHiddenLine)
{
}

Terminal::Terminal(QIODevice &results, QIODevice &messages, SecretReader readSecret)
    : m_results(results), m_messages(messages), m_readSecret(std::move(readSecret))
{
}

Terminal::~Terminal() = default;

void Terminal::writeResult(const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const qint64 part = m_results.write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0) {
            m_hasLostResults = true;
            return;
        }
        written += part;
    }
}

void Terminal::writeProgress(const QString &line)
{
    if (!m_isQuiet)
        writeError(line);
}

void Terminal::writeError(const QString &line)
{
    m_messages.write((line + u'\n').toLocal8Bit());
}

std::optional<QString> Terminal::readSecret(const QString &prompt) const
{
    return m_readSecret ? m_readSecret(prompt) : std::nullopt;
}

QString terminalText(const QString &text)
{
    QString plain = text;
    std::replace_if(
        plain.begin(), plain.end(),
        [](QChar character) {
            return character.category() == QChar::Other_Control ||
                   character.category() == QChar::Other_Format;
        },
        u' ');
    return plain;
}

} // namespace commandline
