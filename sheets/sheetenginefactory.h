#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

/// Makes the implementation of QExcel for this host: on Windows an ApplicationSheetEngine if the spreadsheet
/// application can be started, which this call does; otherwise a FileSheetEngine, which works on the file
/// format. Never null.
[[nodiscard]] std::unique_ptr<SheetEngine> makeSheetEngine();

} // namespace sheets
