// The library interfaces, implemented by the closed libraries themselves.
#pragma once

#include "sdk/binding/bindingproblem.h"
#include "sdk/sdklibraries.h"

#include <filesystem>
#include <variant>

namespace sdk::binding {

/// Loads the libraries that the binding file at the path `file` (bindingfile.h) names, and resolves every
/// function. No function is called. On success it returns the four library interfaces, and the libraries stay
/// loaded until the end of the process. The clock is null; the caller sets it. On failure it returns the
/// first problem and unloads the libraries.
[[nodiscard]] std::variant<SdkLibraries, BindingProblem> bindLibraries(const std::filesystem::path &file);

} // namespace sdk::binding
