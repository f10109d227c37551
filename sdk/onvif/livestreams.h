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

/// Connects an RtspStream to the handler of the library's caller. Thread-safe.
class LiveStream
{
public:
    /// `onRefusal` is called on the stream's thread when the device refuses the password.
    LiveStream(std::int64_t handle, LLONG loginHandle, std::string profile, std::function<void()> onRefusal);

    /// Starts the stream, and blocks until the device plays or refuses, or until the thread's RunningCall is
    /// stopped.
    [[nodiscard]] NetError start(const RtspOrder &order);

    /// Data before the first handler are kept for it, up to a bound, and so is the end of the stream. The
    /// previous handler does not run after the call.
    void setHandler(RealDataHandler handler, void *user);

    void restart(); ///< makes the stream start again with a header, see RtspStream::restart()
    void stop();    ///< ends the stream; no handler runs after the call

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
    std::mutex m_mutex; ///< held while the handler runs
    RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
    bool m_hadHandler = false;
    std::vector<std::uint8_t> m_waiting;
    bool m_hasDropped = false; ///< of the data before the first handler
    std::optional<StreamEnd> m_end;
    std::unique_ptr<RtspStream> m_stream; ///< the last member: its thread uses the others
};

/// Thread-safe.
class LiveStreams
{
public:
    /// Opens a stream and blocks until the device plays. On failure the result is 0 and `error` is set.
    /// `onRefusal` as for LiveStream.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const std::string &profile, const RtspOrder &order,
                                    const std::function<void()> &onRefusal, NetError &error);
    /// Null for an invalid handle.
    [[nodiscard]] std::shared_ptr<LiveStream> stream(std::int64_t handle) const;

    /// False for an invalid handle.
    bool close(std::int64_t handle);
    void closeAllOf(LLONG loginHandle);
    void closeAll();

private:
    mutable std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<LiveStream>> m_streams;
};

} // namespace sdk::onvif
