// The file that names the closed libraries and their functions.
//
//   # Devices of the maker
//   [network]
//   file = libdevices.so
//   NetInit = DevicesInit
//   NetCleanup = 2
//
// There is a section for each library: network, configuration, decoder and agent. `file` is looked up in the
// folder of the binding file. Each other line maps a function (entrypoints.h) to the name of its entry, or on
// Windows to its ordinal.
#pragma once

#include "sdk/binding/bindingproblem.h"

#include <filesystem>
#include <map>
#include <string>
#include <variant>

namespace sdk::binding {

struct BindingSection
{
    std::string library = {};                        ///< UTF-8
    std::map<std::string, std::string> entries = {}; ///< names or ordinals, by function
};

/// By name.
using BindingSections = std::map<std::string, BindingSection>;

/// The sections of the file; FileUnreadable or LineUnusable on failure. Unknown sections and functions are
/// not detected here.
[[nodiscard]] std::variant<BindingSections, BindingProblem>
readBindingFile(const std::filesystem::path &file);

} // namespace sdk::binding
