// Assembles frames from received fragments.
#pragma once

#include "sdk/onvif/live/internal/streamunit.h"
#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace sdk::onvif {

/// FFmpeg's RTP depacketizers deliver H.264 and H.265 as fragments of the stream's NAL units, with start
/// codes. A frame consists of one or several units with image data (slices) and units with parameters. It is
/// complete when the first slice of the next frame arrives, or when the owner calls finish(). Frames of other
/// codecs arrive complete and are delivered immediately. Used by one thread.
class FrameAssembler
{
public:
    /// Receives a complete frame. `bytes` are followed by AV_INPUT_BUFFER_PADDING_SIZE zeros, and are valid
    /// during the call. `time` is the timestamp of the frame's first fragment.
    using Handler = std::function<void(std::span<const std::uint8_t> bytes, std::int64_t time)>;

    /// A larger frame of H.264 or H.265 is dropped. No camera sends such frames.
    static constexpr std::size_t mostBytes = std::size_t{8} * 1024 * 1024;

    /// `codec` is the codec of the video track. `handler` must not be empty.
    FrameAssembler(AVCodecID codec, Handler handler) : m_codec(codec), m_handler(std::move(handler)) {}

    /// Appends the next fragment, and delivers the frame before it if that frame is now complete. `time` is
    /// the fragment's timestamp, in any unit or AV_NOPTS_VALUE. The handler runs during the call.
    void add(std::span<const std::uint8_t> fragment, std::int64_t time);

    /// True if finish() would deliver a frame.
    [[nodiscard]] bool hasFrame() const { return m_hasSlices; }

    /// Delivers the received fragments as a complete frame, if they contain a slice; otherwise they
    /// are dropped. The rest of an incomplete unit is dropped when it arrives; later slices of the frame
    /// become a separate frame.
    void finish();

private:
    /// The destination of the next fragment.
    enum class Destination
    {
        None,      ///< dropped: the start of its unit is missing
        Frame,     ///< `m_frame`
        Following, ///< `m_following`
    };

    void addUnits(std::span<const std::uint8_t> units, const StreamUnit &first, std::int64_t time);
    void append(std::span<const std::uint8_t> bytes);
    void deliver();

    const AVCodecID m_codec;
    const Handler m_handler;
    std::vector<std::uint8_t> m_frame;
    std::int64_t m_time = 0;
    bool m_hasSlices = false;

    /// Parameter units after a slice. They usually belong to the next frame. Some devices repeat their
    /// parameters before each slice: then the next slice is not the first one of a frame, and these units are
    /// dropped.
    std::vector<std::uint8_t> m_following;
    std::int64_t m_followingTime = 0;
    Destination m_destination = Destination::None;
};

} // namespace sdk::onvif
