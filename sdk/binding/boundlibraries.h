// The library interfaces, implemented by the closed libraries themselves.
#pragma once

#include "sdk/binding/bindingproblem.h"
#include "sdk/sdklibraries.h"

#include <filesystem>
#include <variant>

namespace sdk::binding {

/// Loads the libraries that a binding file (bindingfile.h) names, and resolves every function before any is
/// called. The clock stays null: the caller sets it.
[[nodiscard]] std::variant<SdkLibraries, BindingProblem> bindLibraries(const std::filesystem::path &file);

} // namespace sdk::binding
