#include "app/crashreport.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && !defined(CONFIGTOOLS_WITHOUT_CRASH_REPORTS)

#include "app/product.h"
#include "app/recentlog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <cxxabi.h>
#include <exception>
#include <execinfo.h>
#include <fcntl.h>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <typeinfo>
#include <unistd.h>

namespace {

struct Signal
{
    int number;
    const char *name;
};

constexpr std::array<Signal, 5> reportedSignals = {
    {{SIGSEGV, "SIGSEGV"}, {SIGABRT, "SIGABRT"}, {SIGBUS, "SIGBUS"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"}}};
constexpr int maximumFrames = 64;
constexpr std::size_t maximumText = 1024;

// All that the signal handler reads exists before a signal: it must not allocate memory.
struct State
{
    std::array<char, maximumText> folder = {};
    std::array<char, maximumText> path = {};
    std::array<char, maximumText> head = {};   ///< version and system
    std::array<char, maximumText> reason = {}; ///< of std::terminate() or qFatal(); empty for none
    RecentLog log;
    QtMessageHandler previousHandler = nullptr;
    std::terminate_handler previousTerminate = nullptr;
    std::atomic<pid_t> reportingThread = 0;
    std::atomic<bool> isWritten = false; ///< the report is complete
};

State &state()
{
    static State instance;
    return instance;
}

State *installed = nullptr; // the handler must not construct it

alignas(16) std::array<char, 65536> alternateStack; // for an overflow of the stack

/// Copies a text, and cuts it off at the size of the array. Ends with 0.
void copyText(std::array<char, maximumText> &target, const QByteArray &text)
{
    const auto length = std::min<std::size_t>(text.size(), maximumText - 1);
    std::memcpy(target.data(), text.constData(), length);
    target.at(length) = '\0';
}

// The functions below are async-signal-safe.

void write(int file, const char *text)
{
    [[maybe_unused]] const ssize_t written = ::write(file, text, std::strlen(text));
}

void writeNumber(int file, long long number)
{
    std::array<char, 24> digits = {};
    std::to_chars(digits.data(), std::prev(digits.end()), number);
    write(file, digits.data());
}

void writeTwoDigits(int file, long long number)
{
    write(file, number < 10 ? "0" : "");
    writeNumber(file, number);
}

/// The time in UTC, as 2026-03-06 13:35:56.
void writeTime(int file)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::chrono::sys_seconds seconds{std::chrono::seconds(now.tv_sec)};
    const auto day = std::chrono::floor<std::chrono::days>(seconds);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(seconds - day);
    writeNumber(file, int(date.year()));
    for (const unsigned part : {unsigned(date.month()), unsigned(date.day())}) {
        write(file, "-");
        writeTwoDigits(file, part);
    }
    write(file, " ");
    writeTwoDigits(file, time.hours().count());
    write(file, ":");
    writeTwoDigits(file, time.minutes().count());
    write(file, ":");
    writeTwoDigits(file, time.seconds().count());
    write(file, " UTC\n");
}

const char *nameOf(int signal)
{
    for (const Signal &reported : reportedSignals) {
        if (reported.number == signal)
            return reported.name;
    }
    return "unknown";
}

void writeReport(const State &state, int signal)
{
    ::mkdir(state.folder.data(), S_IRWXU); // it may exist
    const int file = ::open(state.path.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    write(file, state.head.data());
    write(file, "Time: ");
    writeTime(file);
    write(file, "Signal: ");
    write(file, nameOf(signal));
    if (state.reason.front() != '\0') {
        write(file, "\nReason: ");
        write(file, state.reason.data());
    }
    write(file, "\nThread: ");
    writeNumber(file, ::syscall(SYS_gettid));
    std::array<char, 17> thread = {};
    ::prctl(PR_GET_NAME, thread.data());
    write(file, " ");
    write(file, thread.data());
    write(file, "\n\nStack:\n");
    std::array<void *, maximumFrames> frames = {};
    const int count = ::backtrace(frames.data(), maximumFrames);
    ::backtrace_symbols_fd(frames.data(), count, file);
    write(file, "\nLog:\n");
    state.log.writeTo(file);
    ::close(file);
}

/// Waits until another thread has written the report, at most 10 s: the fault may prevent its end.
void awaitReport(const State &state)
{
    constexpr timespec interval = {.tv_sec = 0, .tv_nsec = 10'000'000};
    for (int count = 0; count < 1000 && !state.isWritten; ++count)
        ::nanosleep(&interval, nullptr);
}

/// Sets the default action of all reported signals: each of them then ends the process.
void setDefaultActions()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    ::sigemptyset(&action.sa_mask);
    for (const Signal &reported : reportedSignals)
        ::sigaction(reported.number, &action, nullptr);
}

void handleSignal(int signal, siginfo_t *information, void * /*context*/)
{
    const pid_t thread = static_cast<pid_t>(::syscall(SYS_gettid));
    pid_t none = 0;
    if (installed->reportingThread.compare_exchange_strong(none, thread)) {
        writeReport(*installed, signal);
        installed->isWritten = true;
    } else if (none != thread) {
        awaitReport(*installed);
    } // otherwise the report itself has caused a fault
    setDefaultActions();
    // A fault repeats itself with the original stack, a sent signal does not.
    constexpr int isSent = 0;
    if (information->si_code <= isSent)
        ::raise(signal);
}

// The functions below are called outside of the handler.

void noteMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QString line = qFormatLogMessage(type, context, message);
    state().log.add(QDateTime::currentDateTimeUtc().toString(QStringLiteral("HH:mm:ss.zzz ")) + line);
    if (type == QtFatalMsg)
        copyText(state().reason, "fatal message: " + RecentLog::withoutPasswords(line).toUtf8());
    state().previousHandler(type, context, message);
}

/// The type and text of the exception that nothing has caught.
[[noreturn]] void endByTerminate()
{
    QByteArray text = "std::terminate";
    if (const std::exception_ptr exception = std::current_exception()) {
        if (const std::type_info *type = abi::__cxa_current_exception_type()) {
            int status = 0;
            const std::unique_ptr<char, decltype(&std::free)> name(
                abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), &std::free);
            text += QByteArray(": ") + (name ? name.get() : type->name());
        }
        try {
            std::rethrow_exception(exception);
        } catch (const std::exception &error) {
            text += QByteArray(": ") + error.what();
        } catch (...) {
            text += ", not derived from std::exception";
        }
    }
    copyText(state().reason, RecentLog::withoutPasswords(QString::fromUtf8(text)).toUtf8());
    if (state().previousTerminate)
        state().previousTerminate(); // prints the exception and aborts
    std::abort();
}

} // namespace

void CrashReport::install(const QString &folder)
{
    State &state = ::state();
    const QByteArray directory = QFile::encodeName(folder);
    const QByteArray path =
        directory + "/crash-" +
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")).toLatin1() + '-' +
        QByteArray::number(QCoreApplication::applicationPid()) + ".txt";
    if (path.size() >= qsizetype(maximumText))
        return; // a part of a path would be another file
    copyText(state.folder, directory);
    copyText(state.path, path);
    copyText(state.head, QByteArray("Program: ") + Product::logoName.data() + ' ' + Product::version.data() +
                             ", Qt " + qVersion() + "\nSystem: " + QSysInfo::prettyProductName().toUtf8() +
                             ", " + QSysInfo::kernelVersion().toUtf8() + ", " +
                             QSysInfo::currentCpuArchitecture().toUtf8() + '\n');
    installed = &state;

    // The first call loads a library, which a signal handler must not.
    std::array<void *, 1> frame = {};
    (void)::backtrace(frame.data(), 1);

    state.previousHandler = qInstallMessageHandler(&noteMessage);
    state.previousTerminate = std::set_terminate(&endByTerminate);
    stack_t stack = {};
    stack.ss_sp = alternateStack.data();
    stack.ss_size = alternateStack.size();
    ::sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_sigaction = &handleSignal;
    // Without SA_RESETHAND: a fault of another thread must not end the process while the report is written.
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    ::sigemptyset(&action.sa_mask);
    for (const Signal &reported : reportedSignals)
        ::sigaction(reported.number, &action, nullptr);
}

#else

void CrashReport::install(const QString & /*folder*/) {}

#endif
