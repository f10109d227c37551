// The audio of a live stream: a quiet tone.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Not thread-safe.
class AudioEncoder
{
public:
    /// `pitch` in Hz. Returns null and logs the reason if the host has no encoder for the audio of
    /// `settings`.
    [[nodiscard]] static std::unique_ptr<AudioEncoder> open(const StreamSettings &settings, double pitch);

    /// The pitch of a channel (from 0). Neighbouring channels are in harmony.
    [[nodiscard]] static double pitchOf(std::int32_t channel);

    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes the audio from the end of the last call until `seconds` after the start, in complete frames of
    /// the encoder, and appends it to `packets`. Returns false on failure.
    [[nodiscard]] bool encodeUntil(double seconds, EncodedPackets &packets);

private:
    AudioEncoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, double pitch)
        : m_context(std::move(context)), m_frame(std::move(frame)), m_pitch(pitch)
    {
    }
    void fillFrame();
    [[nodiscard]] float sampleAt(std::int64_t index) const;

    AvPointer<AVCodecContext> m_context;
    AvPointer<AVFrame> m_frame;
    double m_pitch;
    std::int64_t m_samples = 0; // encoded so far
};

} // namespace sdk::demo
