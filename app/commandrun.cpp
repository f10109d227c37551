#include "app/commandrun.h"

#include "app/crashreport.h"
#include "app/devicesetup.h"
#include "app/localconfig.h"
#include "app/translationfile.h"
#include "cgi/cgiconfigmanage.h"
#include "commandline/commands.h"
#include "device/registry/devicefactory.h"
#include "files/applicationfolders.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// Without --demo, the scene is not used.
DeviceSetup::Options setupOptions(const commandline::Arguments &arguments)
{
    const ApplicationFolders &folders = ApplicationFolders::current();
    const QString scene = arguments.value("demo"_L1);
    return {.isDemo = arguments.has("demo"_L1) && !arguments.has("no-demo"_L1),
            .scene = scene.isEmpty() ? u"office"_s : scene,
            .programFolder = folders.program(),
            .storeFolder = folders.data()};
}

int runWith(const commandline::Command &command, const commandline::Arguments &arguments,
            commandline::Terminal &terminal)
{
    DeviceSetup setup(setupOptions(arguments));
    // The back ends use the setup.
    const auto tidy = qScopeGuard([] {
        CDeviceFactory::deleteInstance();
        CLocalConfig::deleteInstance();
    });
    if (const std::optional<DeviceSetup::Problem> problem = setup.open()) {
        terminal.writeError(problem->isSite ? u"The simulated site cannot be opened: "_s + problem->text
                                            : problem->text);
        return commandline::NothingDone;
    }
    setup.registerBackEnds(
        [&arguments] {
            return SearchSettings{.localDomain = !arguments.has("no-local"_L1), .logsIn = false};
        },
        {.maximumParallel = CLocalConfig::getinstance()->parallelUpgrades()});
    const CgiSurroundings cgi = CGIConfigManage::programSurroundings();
    setup.prepare(*cgi.transport);
    return commandline::run(
        command, arguments, terminal,
        {.factory = *CDeviceFactory::getinstance(),
         .engine = *setup.batchEngine(),
         .cgi = cgi,
         .parallelDevices = [] { return CLocalConfig::getinstance()->parallelDevices(); },
         .parallelUpgrades = [] { return CLocalConfig::getinstance()->parallelUpgrades(); },
         .siteAccount = setup.siteAccount()});
}

} // namespace

bool isCommand(const QStringList &arguments)
{
    return arguments.size() > 1 && !arguments.at(1).startsWith(u'-');
}

bool commandNeedsFonts(const QStringList &arguments)
{
    const commandline::Command *command = commandline::findCommand(arguments.value(1));
    return command && command->needsFonts;
}

QString commandOverview(const QString &program)
{
    return commandline::overview(program);
}

int runCommand(const QStringList &arguments)
{
    // Standard error is for the progress of the command.
    QLoggingCategory::setFilterRules(u"configtools.*.debug=false\nconfigtools.*.info=false"_s);
    commandline::Terminal terminal;
    const QString program = QFileInfo(arguments.constFirst()).fileName();
    const QString name = arguments.at(1) == "help"_L1 ? arguments.value(2) : arguments.at(1);
    const commandline::Command *command = commandline::findCommand(name);
    if (arguments.at(1) == "help"_L1 && name.isEmpty()) {
        terminal.writeResult(commandline::overview(program).toUtf8());
        return commandline::AllDone;
    }
    if (!command) {
        terminal.writeError(u"%1: unknown command \"%2\""_s.arg(program, name.left(100)));
        terminal.writeError(commandline::overview(program));
        return commandline::UsageError;
    }
    const commandline::Arguments parsed = commandline::Arguments::parse(*command, arguments.mid(2));
    if (arguments.at(1) == "help"_L1 || parsed.has("help"_L1)) {
        terminal.writeResult(commandline::helpOf(*command, program).toUtf8());
        return commandline::AllDone;
    }
    if (!parsed.error.isEmpty()) {
        terminal.writeError(u"%1: %2"_s.arg(program, parsed.error));
        terminal.writeError(u"Try \"%1 help %2\"."_s.arg(program, name));
        return commandline::UsageError;
    }
    CrashReport::install(ApplicationFolders::current().crashReports());
    // English for scripts, independent of the language of the window.
    QTranslator translator;
    if (loadTranslation(translator, ApplicationFolders::current().program() + u"/language/en_US.qm"_s))
        QCoreApplication::installTranslator(&translator);
    return runWith(*command, parsed, terminal);
}
