#include "commandline/interruption.h"

#include <QSocketNotifier>

#include <array>
#include <utility>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace commandline {

#ifdef Q_OS_UNIX

namespace {

std::array<int, 2> signalPipe = {-1, -1}; // read end, write end
Interruption *innermost = nullptr;        // receives the signals

extern "C" void noteInterruption(int signal)
{
    std::signal(signal, SIG_DFL);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}

} // namespace

Interruption::Interruption(std::function<void()> requested) : m_requested(std::move(requested))
{
    if (signalPipe[0] < 0 && pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_outer = std::exchange(innermost, this);
    if (m_outer)
        m_outer->m_notifier->setEnabled(false);
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        char byte = 0;
        if (read(signalPipe[0], &byte, 1) == 1)
            request();
    });
    if (!m_outer) {
        std::signal(SIGINT, &noteInterruption);
        std::signal(SIGTERM, &noteInterruption);
    }
}

void Interruption::request()
{
    if (!std::exchange(m_isRequested, true))
        m_requested();
    if (m_outer)
        m_outer->request();
}

bool Interruption::isRequested()
{
    char byte = 0;
    if (innermost == this && read(signalPipe[0], &byte, 1) == 1) {
        m_isRequested = true;
        if (m_outer)
            m_outer->request();
    }
    return m_isRequested;
}

Interruption::~Interruption()
{
    if (innermost != this) // without a pipe
        return;
    innermost = m_outer;
    if (m_outer) {
        m_outer->m_notifier->setEnabled(true);
        return;
    }
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

#else

Interruption::Interruption(std::function<void()> requested) : m_requested(std::move(requested)) {}
Interruption::~Interruption() = default;

void Interruption::request() {}

bool Interruption::isRequested()
{
    return false;
}

#endif

} // namespace commandline
