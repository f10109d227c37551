#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"

#include "sdk/ffmpeg/internal/decoderport.h"
#include "sdk/ffmpeg/internal/logging.h"
#include "sdk/ffmpeg/internal/savedframe.h"
#include "sdk/ffmpeg/internal/trackdecoder.h"

#include <QFile>

#include <utility>

namespace sdk::ffmpeg {

namespace {

constexpr std::int32_t mostPorts = 512;

/// Bytes from a caller, who has excluded null with a size.
std::span<const std::uint8_t> bytesOf(const std::uint8_t *data, std::uint32_t size)
{
    return data ? std::span(data, size) : std::span<const std::uint8_t>();
}

} // namespace

FfmpegDecoderLibrary::FfmpegDecoderLibrary(std::shared_ptr<const Clock> clock) : m_clock(std::move(clock))
{
    routeLog();
}

FfmpegDecoderLibrary::~FfmpegDecoderLibrary() = default;

bool FfmpegDecoderLibrary::DecoderAllocPort(std::int32_t &port)
{
    const std::lock_guard lock(m_mutex);
    for (std::int32_t number = 0; number < mostPorts; ++number) {
        if (m_ports.contains(number))
            continue;
        m_ports.emplace(number, std::make_shared<DecoderPort>(number, m_clock));
        port = number;
        return true;
    }
    return false;
}

bool FfmpegDecoderLibrary::DecoderSetStreamMode(std::int32_t port, std::uint32_t mode)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    if (!found || mode != 0)
        return false;
    found->setLive();
    return true;
}

bool FfmpegDecoderLibrary::DecoderOpenStream(std::int32_t port, const std::uint8_t *header,
                                             std::uint32_t headerSize, std::uint32_t bufferSize)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    return found && (header || headerSize == 0) && found->open(bytesOf(header, headerSize), bufferSize);
}

bool FfmpegDecoderLibrary::DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    if (found)
        found->setHandler(handler, user);
    return found != nullptr;
}

bool FfmpegDecoderLibrary::DecoderPlay(std::int32_t port, std::uintptr_t)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    return found && found->play();
}

bool FfmpegDecoderLibrary::DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    return found && (data || size == 0) && found->input(bytesOf(data, size));
}

bool FfmpegDecoderLibrary::DecoderStop(std::int32_t port)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    return found && found->stop();
}

bool FfmpegDecoderLibrary::DecoderCloseStream(std::int32_t port)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    return found && found->close();
}

bool FfmpegDecoderLibrary::DecoderFreePort(std::int32_t port)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    if (!found)
        return false;
    found->close(); // a thread in DecoderInputData may still own the port, but the port's thread has ended
    const std::lock_guard lock(m_mutex);
    m_ports.erase(port);
    return true;
}

bool FfmpegDecoderLibrary::DecoderGetStatus(std::int32_t port, DecoderStatus &status)
{
    const std::shared_ptr<DecoderPort> found = portOf(port);
    if (found)
        status = found->status();
    return found != nullptr;
}

bool FfmpegDecoderLibrary::DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width,
                                            std::int32_t height, SavedImageType type, std::int32_t quality,
                                            const char *fileName, FrameColour colour)
{
    constexpr std::int32_t bestQuality = 100;
    if (!frame || !isUsableSize(width, height) || type != SavedImageType::Jpeg || quality < 1 ||
        quality > bestQuality || !fileName) {
        return false;
    }
    return saveFrame(frame, width, height, colour, quality, QFile::decodeName(fileName));
}

std::shared_ptr<DecoderPort> FfmpegDecoderLibrary::portOf(std::int32_t number) const
{
    if (DecoderPort::isInsideHandler()) {
        qCWarning(ffmpegLog, "An operation on port %d was called from a handler, and is refused", number);
        return nullptr;
    }
    const std::lock_guard lock(m_mutex);
    const auto found = m_ports.find(number);
    return found == m_ports.end() ? nullptr : found->second;
}

} // namespace sdk::ffmpeg
