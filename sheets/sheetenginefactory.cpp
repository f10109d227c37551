#include "sheets/sheetenginefactory.h"

#include "sheets/filesheetengine.h"
#include "sheets/logging.h"
#ifdef Q_OS_WIN
#include "sheets/applicationsheetengine.h"
#endif

namespace sheets {

std::unique_ptr<SheetEngine> makeSheetEngine()
{
#ifdef Q_OS_WIN
    if (auto application = std::make_unique<ApplicationSheetEngine>(); application->isAvailable())
        return application;
    qCDebug(logSheets) << "no spreadsheet application, the file format engine is used";
#endif
    return std::make_unique<FileSheetEngine>();
}

} // namespace sheets
