// A library that is loaded at run time.
#pragma once

#include <filesystem>
#include <string>

namespace sdk::binding {

class DynamicLibrary
{
public:
    DynamicLibrary() = default;
    ~DynamicLibrary();
    DynamicLibrary(const DynamicLibrary &) = delete;
    DynamicLibrary &operator=(const DynamicLibrary &) = delete;

    /// Loads the library. On failure returns the system's reason, else an empty text.
    [[nodiscard]] std::string open(const std::filesystem::path &file);

    /// The address of an entry by its name, or on Windows by its ordinal; null if there is none.
    [[nodiscard]] void *entry(const std::string &nameOrOrdinal) const;

    /// Leaves the library loaded until the end of the process. It may have threads that run until then.
    void keep() { m_handle = nullptr; }

private:
    void *m_handle = nullptr;
};

} // namespace sdk::binding
