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

/// Between an RtspStream and the handler that the library's caller sets. Thread-safe.
class LiveStream
{
public:
    /// `onRefusal` is called on the stream's thread when the device refuses the password.
    LiveStream(std::int64_t handle, LLONG loginHandle, std::string profile, std::function<void()> onRefusal);

    /// Starts, and blocks until the device plays or has refused, or the thread's RunningCall is stopped.
    [[nodiscard]] NetError start(const RtspOrder &order);

    /// What came before the first handler is kept for it, up to a bound, and the end as well. After the call
    /// the handler before runs no more.
    void setHandler(RealDataHandler handler, void *user);

    void beginAnew();
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
    std::mutex m_mutex; ///< held while the handler runs
    RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
    bool m_hadHandler = false;
    std::vector<std::uint8_t> m_waiting;
    bool m_hasDropped = false; ///< bytes that waited; the next ones are of use from a header on
    std::optional<StreamEnd> m_end;
    std::unique_ptr<RtspStream> m_stream; ///< last: its thread uses the rest
};

/// Thread-safe.
class LiveStreams
{
public:
    /// Opens a stream and blocks until the device plays. On failure the result is 0 and `error` is set.
    /// `onRefusal` as LiveStream has it.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const std::string &profile, const RtspOrder &order,
                                    const std::function<void()> &onRefusal, NetError &error);
    [[nodiscard]] std::shared_ptr<LiveStream> stream(std::int64_t handle) const;

    /// False for a handle that is no stream.
    bool close(std::int64_t handle);
    void closeAllOf(LLONG loginHandle);
    void closeAll();

private:
    mutable std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<LiveStream>> m_streams;
};

} // namespace sdk::onvif
