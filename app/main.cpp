#include "app/commandline.h"
#include "app/product.h"
#include "app/shell.h"

#include <QApplication>
#include <QTextStream>

namespace {

constexpr int usageError = 2;

} // namespace

int main(int argc, char *argv[])
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);

    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty()) {
        QTextStream(stderr) << commandLine.error << '\n' << CommandLine::usage();
        return usageError;
    }
    if (commandLine.help || commandLine.version) {
        QTextStream(stdout) << (commandLine.help ? CommandLine::usage()
                                                 : Product::version + QLatin1Char('\n'));
        return 0;
    }

    Shell shell(commandLine);
    if (const std::optional<int> exitCode = shell.begin())
        return *exitCode;
    return QApplication::exec();
}
