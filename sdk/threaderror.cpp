#include "sdk/threaderror.h"

#include <atomic>
#include <unordered_map>

namespace sdk {

namespace {

std::unordered_map<std::uint64_t, std::uint32_t> &errorsOfThisThread()
{
    thread_local std::unordered_map<std::uint64_t, std::uint32_t> errors;
    return errors;
}

} // namespace

ThreadError::ThreadError()
{
    static std::atomic<std::uint64_t> lastKey = 0;
    m_key = ++lastKey;
}

bool ThreadError::failWith(std::uint32_t code) const
{
    errorsOfThisThread()[m_key] = code;
    return false;
}

std::uint32_t ThreadError::last() const
{
    const auto &errors = errorsOfThisThread();
    const auto found = errors.find(m_key);
    return found == errors.end() ? 0 : found->second;
}

} // namespace sdk
