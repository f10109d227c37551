// The last error of every calling thread, apart for each library in the process.
#pragma once

#include "sdk/demo/demoerror.h"

#include <cstdint>

namespace sdk::demo {

/// One error code per calling thread. Thread-safe.
class ThreadError
{
public:
    ThreadError();

    /// Sets the code of the calling thread. Always returns false, for `return m_error.fail(...)`.
    bool fail(DemoError error) const;

    /// The code of the calling thread, DemoError::None when nothing has failed on it.
    [[nodiscard]] DemoError last() const;

private:
    std::uint64_t m_key; // never used twice, unlike the address of a library that is gone
};

} // namespace sdk::demo
