#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

/// Makes the engine for this host: on Windows an ApplicationSheetEngine if the spreadsheet application can be
/// started, which this call does; otherwise a FileSheetEngine. Never null.
[[nodiscard]] std::unique_ptr<SheetEngine> makeSheetEngine();

} // namespace sheets
