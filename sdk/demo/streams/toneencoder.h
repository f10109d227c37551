// The sound of a live stream: a gentle tone.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Belongs to one thread.
class ToneEncoder
{
public:
    /// `pitch` in Hz. Returns null, and says why in the log, when the computer has no encoder for the sound
    /// of `settings`.
    [[nodiscard]] static std::unique_ptr<ToneEncoder> open(const StreamSettings &settings, double pitch);

    /// The pitch of a channel (from 0): neighbours sound well together.
    [[nodiscard]] static double pitchOf(std::int32_t channel);

    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes the sound from where the last call has ended until `seconds` from the begin, in whole frames
    /// of the encoder. Returns false when that fails.
    [[nodiscard]] bool encodeUntil(double seconds, EncodedPackets &packets);

private:
    ToneEncoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, double pitch)
        : m_context(std::move(context)), m_frame(std::move(frame)), m_pitch(pitch)
    {
    }
    void fillFrame();
    [[nodiscard]] float sampleAt(std::int64_t place) const;

    AvPointer<AVCodecContext> m_context;
    AvPointer<AVFrame> m_frame;
    double m_pitch;
    std::int64_t m_samples = 0; // that were encoded
};

} // namespace sdk::demo
