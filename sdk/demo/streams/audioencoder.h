// The audio of a simulated live stream: a quiet tone.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Generates and encodes the tone. Not thread-safe.
class AudioEncoder
{
public:
    /// `pitch` in Hz. Returns null and logs the reason if the host cannot encode the audio of `settings`, and
    /// if `settings` has none.
    [[nodiscard]] static std::unique_ptr<AudioEncoder> open(const StreamSettings &settings, double pitch);

    /// The pitch of a channel (from 0), in Hz. Neighbouring channels are in harmony.
    [[nodiscard]] static double pitchOf(std::int32_t channel);

    /// The parameters of the encoding. Owned by this object.
    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes the audio from the end of the last call until `seconds` after the start of the stream, in
    /// complete frames of the encoder, and appends it to `packets`. After a pause of more than two seconds,
    /// the audio of the pause is left out. Returns false on failure.
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
