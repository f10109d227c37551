// The file that names the closed libraries and their functions.
//
//   # Devices of the maker
//   [network]
//   file = libdevices.so
//   NetInit = DevicesInit
//   NetCleanup = 2
//
// There is a section for each library: network, configuration, decoder and agent. The value of `file` is
// looked up in the folder of the binding file. Each other line maps a function (entrypoints.h) to the name of
// its entry in the library, or on Windows to its ordinal. Empty lines and lines that begin with "#" are
// ignored, and so are spaces around names and values. Sections with the same name are one section. Of several
// lines of a section with the same name, the last one counts.
#pragma once

#include "sdk/binding/bindingproblem.h"

#include <filesystem>
#include <map>
#include <string>
#include <variant>

namespace sdk::binding {

/// One library of the file, and its functions.
struct BindingSection
{
    std::string library = {};                        ///< the value of `file`, UTF-8; empty if it is missing
    std::map<std::string, std::string> entries = {}; ///< names or ordinals of the library's entries, by the
                                                     ///< names of functions in entrypoints.h
};

/// The sections by their names.
using BindingSections = std::map<std::string, BindingSection>;

/// Reads the sections of the file. Fails with FileUnreadable, or with LineUnusable for a line that is not a
/// section, not an entry with a name and a value, or before the first section. Missing and unknown sections
/// and functions are not detected here.
[[nodiscard]] std::variant<BindingSections, BindingProblem>
readBindingFile(const std::filesystem::path &file);

} // namespace sdk::binding
