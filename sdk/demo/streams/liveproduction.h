// Generates and encodes the video and audio of one live stream.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/audioencoder.h"
#include "sdk/demo/streams/cardframe.h"
#include "sdk/demo/streams/testcard.h"
#include "sdk/demo/streams/videoencoder.h"
#include "sdk/streams/matroskawriter.h"

namespace sdk::demo {

/// The test card of a channel (from 0), in the size of `settings`. Its tint depends on the device and the
/// channel; its labels show the device, the channel, `kind`, the size and the codec.
[[nodiscard]] TestCard testCardOf(const SceneDevice &device, std::int32_t channel, LiveStreamKind kind,
                                  const StreamSettings &settings);

/// Draws the test card and the tone of a channel and encodes them; it does not time the frames. Used by one
/// thread at a time. The settings do not change: other settings need another production.
class LiveProduction
{
public:
    /// Opens the encoders. Returns null if the host cannot encode such video; a missing encoder is logged. If
    /// the host cannot encode the audio, the reason is logged and the stream has no audio.
    [[nodiscard]] static std::unique_ptr<LiveProduction> start(const SceneDevice &device,
                                                               std::int32_t channel, LiveStreamKind kind,
                                                               const StreamSettings &settings);

    [[nodiscard]] const StreamSettings &settings() const { return m_settings; }

    /// Codec-specific data that a decoder needs before the first packet, such as parameter sets. Empty for a
    /// codec without such data, and for the audio of a stream without audio.
    [[nodiscard]] QByteArray videoHead() const;
    [[nodiscard]] QByteArray soundHead() const;

    /// A container for one viewer, which starts with its header. Returns null and logs the failure if it
    /// cannot be written.
    [[nodiscard]] std::unique_ptr<streams::MatroskaWriter> openWriter() const;

    /// Encodes the frame with the index `number` and the audio up to it, and appends both to `packets`.
    /// Indexes count frame durations since the start of the production; they increase, and skip dropped
    /// frames. `deviceTime` is the time of the device's clock that the card shows, in ms since 1970. With
    /// `isKey` the frame is a key frame. Returns false if the frame cannot be drawn or an encoder fails.
    [[nodiscard]] bool encodeFrame(std::int64_t number, std::int64_t deviceTime, bool isKey,
                                   EncodedPackets &packets);

private:
    LiveProduction(const StreamSettings &settings, TestCard card)
        : m_settings(settings), m_card(std::move(card))
    {
    }

    StreamSettings m_settings;
    TestCard m_card;
    std::unique_ptr<VideoEncoder> m_encoder;
    std::unique_ptr<CardFrame> m_frame;
    std::unique_ptr<AudioEncoder> m_sound; // null for a stream without audio
};

} // namespace sdk::demo
