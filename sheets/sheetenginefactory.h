#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

/// The engine for this host: on Windows the spreadsheet application if it is installed, otherwise the engine
/// on the file format. Never null.
[[nodiscard]] std::unique_ptr<SheetEngine> makeSheetEngine();

} // namespace sheets
