// Writes a report when the process ends by a fault.
#pragma once

#include <QString>

namespace CrashReport {

/// Name filter of the reports in their folder.
inline constexpr const char *nameFilter = "crash-*.txt";

/// From then on, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, std::terminate() and qFatal() write a report into
/// `folder` before their default action, which still occurs. The folder is created when the first report is
/// written, but not the folder that contains it. A report has the version, the time, the reason, the thread,
/// its stack and the latest lines of the log since install(), without passwords. It is readable by the user
/// only.
///
/// A stack overflow is reported only on the thread that called install(). Messages are forwarded to the
/// previous message handler. Called once, on the main thread. No effect on systems other than Linux, in a
/// build with sanitizers, which have their own reports, and if the path of a report exceeds 1023 bytes.
void install(const QString &folder);

} // namespace CrashReport
