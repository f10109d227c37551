#include "sdk/demo/internal/threaderror.h"

#include <atomic>
#include <unordered_map>

namespace sdk::demo {

namespace {

std::unordered_map<std::uint64_t, DemoError> &errorsOfThisThread()
{
    thread_local std::unordered_map<std::uint64_t, DemoError> errors;
    return errors;
}

} // namespace

ThreadError::ThreadError()
{
    static std::atomic<std::uint64_t> lastKey = 0;
    m_key = ++lastKey;
}

bool ThreadError::fail(DemoError error) const
{
    errorsOfThisThread()[m_key] = error;
    return false;
}

DemoError ThreadError::last() const
{
    const auto &errors = errorsOfThisThread();
    const auto found = errors.find(m_key);
    return found == errors.end() ? DemoError::None : found->second;
}

} // namespace sdk::demo
