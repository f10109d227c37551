// The reason why closed libraries cannot be bound.
#pragma once

#include <string>

namespace sdk::binding {

struct BindingProblem
{
    /// The meanings of `file` and `name`. A library is named as in its section.
    enum class Kind
    {
        FileUnreadable,  ///< `file` is the path of the binding file; `name` is empty
        LineUnusable,    ///< `name` is the line of the binding file `file` that is not a section or an entry
        SectionMissing,  ///< `name` is the section, which is missing or has no line "file"; `file` is empty
        FunctionMissing, ///< the section of the library `file` does not list the function `name`
        FunctionUnknown, ///< the section of the library `file` lists the unknown function `name`
        LibraryUnusable, ///< the library `file` is missing or cannot be loaded; `name` is the system's reason
        EntryMissing,    ///< the library `file` has no entry `name`
    };

    Kind kind = Kind::FileUnreadable;
    std::string file = {};
    std::string name = {};
};

} // namespace sdk::binding
