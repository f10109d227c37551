#include "fuzz/input.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"

#include <thread>

namespace {

constexpr std::uint32_t bufferSize = 8388608;

/// Reads every delivered byte, so that a sanitizer checks the access.
void readAll(std::int32_t, const std::uint8_t *data, std::int32_t size, const sdk::DecodedFrameInformation *,
             void *user)
{
    auto *sum = static_cast<unsigned *>(user);
    for (std::int32_t index = 0; index < size; ++index)
        *sum += data[index];
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    static sdk::ffmpeg::FfmpegDecoderLibrary library;
    unsigned sum = 0;
    std::int32_t port = -1;
    const auto count = static_cast<std::uint32_t>(size);
    if (!library.DecoderAllocPort(port) || !library.DecoderOpenStream(port, nullptr, 0, bufferSize) ||
        !library.DecoderSetDecodeCallback(port, &readAll, &sum) || !library.DecoderPlay(port, 0)) {
        qFatal("a port cannot be opened");
    }
    if (count <= bufferSize && !library.DecoderInputData(port, data, count))
        qFatal("an empty port has no room");
    sdk::DecoderStatus status{};
    while (library.DecoderGetStatus(port, status) && status.waitingBytes > 0)
        std::this_thread::yield();
    if (!library.DecoderFreePort(port))
        qFatal("a port cannot be freed");
    return 0;
}
