#include "commandline/outputfolder.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace commandline {

OutputFolder outputFolder(const CommandContext &context)
{
    const QDir folder(QDir(context.arguments.value("output"_L1, u"."_s)).absolutePath());
    if (!context.isDryRun() && !folder.mkpath(u"."_s))
        return {.path = {}, .error = u"the folder %1 cannot be created"_s.arg(folder.path())};
    return {.path = folder.path(), .error = {}};
}

} // namespace commandline
