// A shared library that is loaded at run time.
#pragma once

#include <filesystem>
#include <string>

namespace sdk::binding {

/// Used by one thread at a time.
class DynamicLibrary
{
public:
    DynamicLibrary() = default;

    /// Unloads the library, unless keep() was called.
    ~DynamicLibrary();
    DynamicLibrary(const DynamicLibrary &) = delete;
    DynamicLibrary &operator=(const DynamicLibrary &) = delete;

    /// Loads the library, and runs its initialisers. To be called once. Returns an empty string on success,
    /// otherwise the system's error text, on Windows "error " and the system's error number.
    [[nodiscard]] std::string open(const std::filesystem::path &file);

    /// The address of an entry by its name, or on Windows also by its ordinal in decimal; null if there is
    /// none. To be called after open() has succeeded and before keep().
    [[nodiscard]] void *entry(const std::string &nameOrOrdinal) const;

    /// Keeps the library loaded until the end of the process, since its threads may run until then. The
    /// object no longer refers to it afterwards.
    void keep() { m_handle = nullptr; }

private:
    void *m_handle = nullptr;
};

} // namespace sdk::binding
