#include "sdk/binding/dynamiclibrary.h"

#ifdef _WIN32
#include <windows.h>

#include <charconv>
#include <cstdint>
#else
#include <dlfcn.h>
#endif

namespace sdk::binding {

#ifdef _WIN32

DynamicLibrary::~DynamicLibrary()
{
    if (m_handle)
        FreeLibrary(static_cast<HMODULE>(m_handle));
}

std::string DynamicLibrary::open(const std::filesystem::path &file)
{
    m_handle = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    return m_handle ? std::string() : "error " + std::to_string(GetLastError());
}

void *DynamicLibrary::entry(const std::string &nameOrOrdinal) const
{
    std::uint16_t ordinal = 0;
    const char *const end = nameOrOrdinal.data() + nameOrOrdinal.size();
    const auto [rest, failure] = std::from_chars(nameOrOrdinal.data(), end, ordinal);
    const bool isOrdinal = failure == std::errc() && rest == end && ordinal > 0;
    return reinterpret_cast<void *>(GetProcAddress(
        static_cast<HMODULE>(m_handle), isOrdinal ? MAKEINTRESOURCEA(ordinal) : nameOrOrdinal.c_str()));
}

#else

DynamicLibrary::~DynamicLibrary()
{
    if (m_handle)
        dlclose(m_handle);
}

std::string DynamicLibrary::open(const std::filesystem::path &file)
{
    m_handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    const char *reason = m_handle ? nullptr : dlerror();
    return reason ? reason : "";
}

void *DynamicLibrary::entry(const std::string &nameOrOrdinal) const
{
    return dlsym(m_handle, nameOrOrdinal.c_str());
}

#endif

} // namespace sdk::binding
