// The pictures and the sound of one live stream, made and encoded.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/cardpicture.h"
#include "sdk/demo/streams/pictureencoder.h"
#include "sdk/demo/streams/testcard.h"
#include "sdk/demo/streams/toneencoder.h"
#include "sdk/streams/matroskawriter.h"

namespace sdk::demo {

/// The test card that the stream of a channel (from 0) shows.
[[nodiscard]] TestCard testCardOf(const SceneDevice &device, std::int32_t channel, LiveStreamKind kind,
                                  const StreamSettings &settings);

/// Belongs to one thread. Goes on with the same settings from its begin to its end.
class LiveProduction
{
public:
    /// Returns null, and says why in the log, when the computer cannot encode such a stream.
    [[nodiscard]] static std::unique_ptr<LiveProduction> begin(const SceneDevice &device,
                                                               std::int32_t channel, LiveStreamKind kind,
                                                               const StreamSettings &settings);

    [[nodiscard]] const StreamSettings &settings() const { return m_settings; }

    // What decoders need to know before the first packet: parameter sets and the like. Empty for a codec
    // without.
    [[nodiscard]] QByteArray pictureHead() const;
    [[nodiscard]] QByteArray soundHead() const;

    /// The container of a watcher. Null on failure, which the log tells.
    [[nodiscard]] std::unique_ptr<streams::MatroskaWriter> openWriter() const;

    /// Makes the picture of that number, counted by the time that passes, and the sound that goes before it.
    /// `deviceTime` is what the device's own clock shows. With `isKey` the picture needs no earlier one.
    /// Returns false when the encoder fails.
    [[nodiscard]] bool makePicture(std::int64_t number, std::int64_t deviceTime, bool isKey,
                                   EncodedPackets &packets);

private:
    LiveProduction(const StreamSettings &settings, TestCard card)
        : m_settings(settings), m_card(std::move(card))
    {
    }

    StreamSettings m_settings;
    TestCard m_card;
    std::unique_ptr<PictureEncoder> m_encoder;
    std::unique_ptr<CardPicture> m_picture;
    std::unique_ptr<ToneEncoder> m_sound; // null for a stream without
};

} // namespace sdk::demo
