// The last error of every calling thread, stored separately for each library object. Implementations of
// NetLibrary return it by NetGetLastError().
#pragma once

#include <cstdint>
#include <type_traits>

namespace sdk {

/// One error code per calling thread. Thread-safe.
class ThreadError
{
public:
    ThreadError();

    /// Sets the code of the calling thread to the value of an enumerator. It stays until the next failure of
    /// the thread. Always returns false, for `return m_error.fail(...)`.
    template<typename Error>
    requires std::is_enum_v<Error>
    bool fail(Error error) const { return failWith(static_cast<std::uint32_t>(error)); }

    /// The last code of the calling thread, 0 if fail() was not called on it.
    [[nodiscard]] std::uint32_t last() const;

private:
    bool failWith(std::uint32_t code) const;

    std::uint64_t m_key; // never reused, unlike the address of a destroyed library
};

} // namespace sdk
