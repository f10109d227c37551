// Generates and encodes the video and audio of one live stream.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/audioencoder.h"
#include "sdk/demo/streams/cardframe.h"
#include "sdk/demo/streams/testcard.h"
#include "sdk/demo/streams/videoencoder.h"
#include "sdk/streams/matroskawriter.h"

namespace sdk::demo {

/// The test card of a channel (from 0).
[[nodiscard]] TestCard testCardOf(const SceneDevice &device, std::int32_t channel, LiveStreamKind kind,
                                  const StreamSettings &settings);

/// Not thread-safe. The settings do not change.
class LiveProduction
{
public:
    /// Returns null and logs the reason if the host cannot encode such a stream.
    [[nodiscard]] static std::unique_ptr<LiveProduction> start(const SceneDevice &device,
                                                               std::int32_t channel, LiveStreamKind kind,
                                                               const StreamSettings &settings);

    [[nodiscard]] const StreamSettings &settings() const { return m_settings; }

    /// Codec-specific data that a decoder needs before the first packet, such as parameter sets. Empty for a
    /// codec without such data.
    [[nodiscard]] QByteArray videoHead() const;
    [[nodiscard]] QByteArray soundHead() const;

    /// The container of one viewer. Returns null and logs the reason on failure.
    [[nodiscard]] std::unique_ptr<streams::MatroskaWriter> openWriter() const;

    /// Encodes the frame with the index `number`, which follows from the elapsed time, and the audio before
    /// it. `deviceTime` is the time of the device's clock, in ms since 1970. With `isKey` the frame is a key
    /// frame. Both are appended to `packets`. Returns false if the encoder fails.
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
