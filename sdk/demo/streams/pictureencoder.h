// Encodes the pictures of a live stream.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Belongs to one thread. Every picture that goes in comes out at once.
class PictureEncoder
{
public:
    /// Returns null, and says why in the log, when the computer has no encoder for `settings`.
    [[nodiscard]] static std::unique_ptr<PictureEncoder> open(const StreamSettings &settings);
    ~PictureEncoder();
    PictureEncoder(const PictureEncoder &) = delete;
    PictureEncoder &operator=(const PictureEncoder &) = delete;

    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes `picture`, which is of the size and format of context(), as the one of that number; numbers
    /// rise by the time that passes. With `isKey` it needs no earlier one. Returns false when that fails.
    [[nodiscard]] bool encode(AVFrame &picture, std::int64_t number, bool isKey, EncodedPackets &packets);

private:
    explicit PictureEncoder(AvPointer<AVCodecContext> context) : m_context(std::move(context)) {}

    AvPointer<AVCodecContext> m_context;
};

/// Takes from `context` what it has encoded so far, as packets of `track`. Returns false on failure.
[[nodiscard]] bool receivePackets(AVCodecContext &context, int track, EncodedPackets &packets);

} // namespace sdk::demo
