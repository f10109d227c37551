// The last error of every calling thread, apart for each library in the process.
#pragma once

#include "sdk/demo/demoerror.h"
#include "sdk/neterror.h"

#include <cstdint>

namespace sdk::demo {

/// One error code per calling thread. Thread-safe.
class ThreadError
{
public:
    ThreadError();

    /// Sets the code of the calling thread. Always returns false, for `return m_error.fail(...)`.
    bool fail(DemoError error) const { return fail(static_cast<std::uint32_t>(error)); }
    bool fail(NetError error) const { return fail(static_cast<std::uint32_t>(error)); }

    /// The code of the calling thread, 0 when nothing has failed on it.
    [[nodiscard]] std::uint32_t last() const;

private:
    bool fail(std::uint32_t code) const;

    std::uint64_t m_key; // never used twice, unlike the address of a library that is gone
};

} // namespace sdk::demo
