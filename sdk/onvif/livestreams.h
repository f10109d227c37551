// The live streams of all sessions.
#pragma once

#include "sdk/loginblocks.h"
#include "sdk/neterror.h"
#include "sdk/onvif/live/rtspstream.h"
#include "sdk/streamblocks.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace sdk::onvif {

/// Connects an RtspStream, which receives the video of a device, to the handler of the library's caller. The
/// handler runs on the thread of the stream. After start() has succeeded, any thread may call the other
/// functions. The handler must not call setHandler() or stop(), which wait until it has returned.
class LiveStream
{
public:
    /// `handle` is passed to the handler. `loginHandle` is the session of the stream. `profile` is the token
    /// of the stream's media profile, the device's name for the settings of a stream. `onRefusal` must not be
    /// empty. It is called on the stream's thread when the device refuses the password.
    LiveStream(std::int64_t handle, LLONG loginHandle, std::string profile, std::function<void()> onRefusal);

    /// Starts the stream. To be called once, before the other functions. Blocks until the device plays, the
    /// start has failed, or the RunningCall of the calling thread is stopped. Returns NetError::None if the
    /// device plays. Errors: WrongPassword for a refused password, Refused for another refusal, NotSupported
    /// for a missing or undecodable stream or an unsupported login method, DeviceBusy at the device's limit
    /// of streams, ConnectFailed for a closed port, ConnectTimeout for a device that does not respond,
    /// ProtocolMismatch for an unusable URL or response, InvalidValue for an account that cannot be sent,
    /// NetworkFailure after a stop, after a broken connection and if no thread can be created.
    [[nodiscard]] NetError start(const RtspOrder &order);

    /// Sets the handler; null removes it. Data that arrive before the first handler are kept, up to 4 MiB.
    /// This call passes them to the first handler on the calling thread. If there were more data, all of them
    /// are dropped, and the stream starts again with a header. Later data without a handler are dropped. The
    /// end of the stream is kept until there is a handler and is reported once. An end by stop() is not
    /// reported. The previous handler does not run after the call.
    void setHandler(RealDataHandler handler, void *user);

    /// Makes the stream start again with a header at its next key frame. Returns immediately.
    void restart();

    /// Ends the stream and blocks until its thread has ended. No handler runs after the call.
    void stop();

    [[nodiscard]] LLONG loginHandle() const { return m_loginHandle; }
    [[nodiscard]] const std::string &profile() const { return m_profile; }

private:
    void take(std::span<const std::uint8_t> bytes);
    void keep(std::span<const std::uint8_t> bytes);
    void noteEnd(StreamEnd end);
    void reportEnd();

    const std::int64_t m_handle;
    const LLONG m_loginHandle;
    const std::string m_profile;
    const std::function<void()> m_onRefusal;
    std::mutex m_mutex; ///< guards the members below up to `m_end`; held while the handler runs
    RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
    bool m_hadHandler = false;
    std::vector<std::uint8_t> m_waiting;  ///< data before the first handler
    bool m_hasDropped = false;            ///< data before the first handler were dropped
    std::optional<StreamEnd> m_end;       ///< an end that no handler has received yet
    std::unique_ptr<RtspStream> m_stream; ///< the last member: its thread uses the others
};

/// The running streams by handle. Thread-safe. The functions that close streams block until their threads
/// have ended, so handlers must not call them. These functions do not close a stream that open() is still
/// starting: its RunningCall ends it.
class LiveStreams
{
public:
    /// Opens a stream and blocks as LiveStream::start(), whose error is stored in `error`. Returns the handle
    /// of the stream, above 0, which close() frees; 0 on failure. `onRefusal` as for LiveStream.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const std::string &profile, const RtspOrder &order,
                                    const std::function<void()> &onRefusal, NetError &error);
    /// The stream of a handle; null for an invalid handle.
    [[nodiscard]] std::shared_ptr<LiveStream> stream(std::int64_t handle) const;

    /// Stops the stream and frees its handle. Returns false for an invalid handle.
    bool close(std::int64_t handle);
    void closeAllOf(LLONG loginHandle); ///< closes the streams of one session
    void closeAll();                    ///< closes the streams of all sessions

private:
    mutable std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<LiveStream>> m_streams;
};

} // namespace sdk::onvif
