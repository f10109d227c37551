#pragma once

#include "sheets/sheetengine.h"

#include <memory>

namespace sheets {

/// The engine for this machine: the spreadsheet application where it is installed, otherwise the one that
/// works on the files themselves. Never null.
[[nodiscard]] std::unique_ptr<SheetEngine> makeSheetEngine();

} // namespace sheets
