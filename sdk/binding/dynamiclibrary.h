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

    /// Loads the library. Returns the system's error text on failure; empty on success.
    [[nodiscard]] std::string open(const std::filesystem::path &file);

    /// The address of an entry by its name, or on Windows by its ordinal; null if there is none.
    [[nodiscard]] void *entry(const std::string &nameOrOrdinal) const;

    /// Keeps the library loaded until the end of the process, since its threads may run until then.
    void keep() { m_handle = nullptr; }

private:
    void *m_handle = nullptr;
};

} // namespace sdk::binding
