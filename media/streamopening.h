// A request for a live stream that does not block the window.
#pragma once

#include "sdk/loginblocks.h"
#include "sdk/streamblocks.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>

namespace sdk {
class NetLibrary;
}

/// One request for a stream, on a thread of a pool that ends with the application. It is created and
/// destroyed on the thread of its context.
class StreamOpening
{
public:
    struct Request
    {
        sdk::LLONG loginHandle = 0;
        std::int32_t channel = 0; ///< from 0
        sdk::LiveStreamKind kind = sdk::LiveStreamKind::Main;
    };

    struct Result
    {
        std::int64_t handle = 0; ///< of the stream, which the receiver closes; 0 on failure
        std::uint32_t error = 0; ///< NetGetLastError() on failure; 0 without a library
    };

    using Handler = std::function<void(const Result &result)>;

    /// Blocks until the device has responded. Fails without a library (null).
    [[nodiscard]] static Result open(sdk::NetLibrary *net, const Request &request);

    /// Starts the request. `handler` is called once on the thread of `context`, which needs an event loop and
    /// outlives this object. Fails without a library (null).
    StreamOpening(std::shared_ptr<sdk::NetLibrary> net, const Request &request, QObject *context,
                  Handler handler);

    /// Cancels the request if the handler has not been called: it is not called, and a stream that is opened
    /// later is closed.
    ~StreamOpening();
    StreamOpening(const StreamOpening &) = delete;
    StreamOpening &operator=(const StreamOpening &) = delete;

private:
    struct State;

    const std::shared_ptr<State> m_state;
};
