// The network library's roles: everything that goes to a device over its own protocol.
#pragma once

#include "sdk/searchblocks.h"

#include <chrono>
#include <cstdint>

namespace sdk {

/// Operations may be called from any thread, several at a time. A failed one leaves its error code for the
/// calling thread, to be fetched with NetGetLastError.
class NetLibrary
{
public:
    virtual ~NetLibrary() = default;

    /// Prepares the library; to be called once before any other operation. Returns false when it cannot work.
    virtual bool NetInit() = 0;

    /// Ends every search and blocked call and releases the library. After it has returned no handler runs any
    /// more, and every operation but NetInit fails.
    virtual void NetCleanup() = 0;

    /// Error code of the last failed operation of the calling thread, 0 when none has failed.
    [[nodiscard]] virtual std::uint32_t NetGetLastError() const = 0;

    /// Starts a search of the local segment and returns at once. Answers reach `parameter.handler` on threads
    /// of the library until NetStopSearchDevices. `wait` bounds the sending of the request. Returns the
    /// handle of the search, 0 on failure.
    virtual std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                               std::chrono::milliseconds wait) = 0;

    /// The second kind of local search, which devices answer that do not know the first.
    virtual std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                 std::chrono::milliseconds wait) = 0;

    /// Asks each address of `request` and blocks until `wait` has passed or NetCleanup is called. Answers
    /// reach `handler` on threads of the library during the call, never after it. Returns false when the
    /// request is malformed (size, count) or could not be sent.
    virtual bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                       void *user, const char *localAddress,
                                       std::chrono::milliseconds wait) = 0;

    /// The same for the second kind of answer.
    virtual bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                         void *user, const char *localAddress,
                                         std::chrono::milliseconds wait) = 0;

    /// Stops one local search. After it has returned, the handler of that search runs no more. Must not be
    /// called from a handler. Returns false for a handle that is not a running search.
    virtual bool NetStopSearchDevices(std::int64_t searchHandle) = 0;
};

} // namespace sdk
