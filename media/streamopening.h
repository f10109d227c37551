// A live stream that a device is asked for while the window goes on.
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

/// One request for a stream, on a thread of a pool that ends with the application. Everything but the request
/// is on the thread of the application's window.
class StreamOpening
{
public:
    struct Order
    {
        sdk::LLONG loginHandle = 0;
        std::int32_t channel = 0; ///< from 0
        sdk::LiveStreamKind kind = sdk::LiveStreamKind::Main;
    };

    struct Result
    {
        std::int64_t handle = 0; ///< belongs to the callee; 0 if there is no stream
        std::uint32_t error = 0; ///< of the library, without a stream
    };

    using Opened = std::function<void(const Result &result)>;

    /// Asks for a stream and blocks until the device has answered. Without a library (null) there is none.
    [[nodiscard]] static Result ask(sdk::NetLibrary *net, const Order &order);

    /// Asks at once; without a library (null) there is no stream. `opened` is called on the thread of
    /// `context`, which outlives this object.
    StreamOpening(std::shared_ptr<sdk::NetLibrary> net, const Order &order, QObject *context, Opened opened);

    /// Without a call before, `opened` is not called any more, and the stream is closed as soon as it is
    /// there.
    ~StreamOpening();
    StreamOpening(const StreamOpening &) = delete;
    StreamOpening &operator=(const StreamOpening &) = delete;

private:
    struct State;

    const std::shared_ptr<State> m_state;
};
