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

/// One request for a stream, on a thread of a pool of 16, which ends with the application. Further requests
/// wait for a free thread. The object is created and destroyed on the thread of its context.
class StreamOpening
{
public:
    struct Request
    {
        sdk::LLONG loginHandle = 0; ///< the session
        std::int32_t channel = 0;   ///< from 0
        sdk::LiveStreamKind kind = sdk::LiveStreamKind::Main;
    };

    struct Result
    {
        std::int64_t handle = 0; ///< of the stream, to be closed by NetStopRealStream(); 0 on failure
        std::uint32_t error = 0; ///< NetGetLastError() on failure; 0 without a library
    };

    using Handler = std::function<void(const Result &result)>;

    /// Blocks until the device has responded. Fails without a library (null).
    [[nodiscard]] static Result open(sdk::NetLibrary *net, const Request &request);

    /// Starts the request and returns. When the device has responded, `handler` is called once by the event
    /// loop of the thread of `context`. `context` must outlive this object. `handler` may destroy this
    /// object. Without a library (null), `handler` is called with a failure.
    StreamOpening(std::shared_ptr<sdk::NetLibrary> net, const Request &request, QObject *context,
                  Handler handler);

    /// Cancels the request if the handler has not been called. The handler is not called afterwards, and a
    /// stream that the request has opened or opens later is closed on the pool. Does not wait for the device.
    ~StreamOpening();
    StreamOpening(const StreamOpening &) = delete;
    StreamOpening &operator=(const StreamOpening &) = delete;

private:
    struct State;

    const std::shared_ptr<State> m_state;
};
