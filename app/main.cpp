#include "app/commandline.h"
#include "app/commandrun.h"
#include "app/crashreport.h"
#include "app/product.h"
#include "app/shell.h"
#include "files/applicationfolders.h"

#include <QApplication>
#include <QFileInfo>
#include <QTextStream>

#include <optional>

namespace {

constexpr int usageError = 2;

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

/// Options that only print a text, and errors, with the exit code; nullopt if the window is to open.
std::optional<int> printText(const CommandLine &commandLine, const QString &program)
{
    if (commandLine.help)
        QTextStream(stdout) << CommandLine::usage() << '\n' << commandOverview(program);
    else if (commandLine.version)
        QTextStream(stdout) << Product::version << '\n';
    else
        return std::nullopt;
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = argumentsOf(argc, argv);
    if (isCommand(arguments)) {
        if (commandNeedsFonts(arguments)) {
            qputenv("QT_QPA_PLATFORM", "offscreen"); // works without a display
            const QGuiApplication application(argc, argv);
            return runCommand(arguments);
        }
        const QCoreApplication application(argc, argv);
        return runCommand(arguments);
    }
    // Without the options of Qt, such as -style, which only the application object removes.
    const QString program = QFileInfo(arguments.value(0)).fileName();
    if (const std::optional<int> exitCode = printText(CommandLine::parse(arguments), program))
        return *exitCode;

    Shell::prepareApplication();
    const QApplication application(argc, argv);
    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty()) {
        QTextStream(stderr) << commandLine.error << '\n' << CommandLine::usage();
        return usageError;
    }
    if (const std::optional<int> exitCode = printText(commandLine, program))
        return *exitCode;
    CrashReport::install(ApplicationFolders::current().crashReports());
    Shell shell(commandLine);
    if (const std::optional<int> exitCode = shell.begin())
        return *exitCode;
    return QApplication::exec();
}
