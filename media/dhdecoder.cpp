#include "media/dhdecoder.h"

#include "media/freedmemory.h"
#include "media/logging.h"
#include "media/videodataobserver.h"
#include "sdk/blocktext.h"
#include "sdk/clock.h"

#include <utility>

namespace {

constexpr std::uint32_t liveMode = 0;
constexpr std::uint32_t streamBufferSize = 8388608;

std::atomic<int> openPorts = 0; // number of open ports of all decoders

} // namespace

CDHDecoder::CDHDecoder(VideoDataObserver *observer, std::shared_ptr<sdk::DecoderLibrary> library,
                       std::shared_ptr<sdk::Clock> clock)
    : m_observer(observer), m_library(std::move(library)), m_clock(std::move(clock))
{
}

CDHDecoder::~CDHDecoder()
{
    Stop();
}

bool CDHDecoder::Start()
{
    std::int32_t port = noPort;
    if (!m_library || !m_library->DecoderAllocPort(port))
        return false;
    m_port = port;
    m_library->DecoderSetStreamMode(port, liveMode);
    if (m_library->DecoderOpenStream(port, nullptr, 0, streamBufferSize)) {
        m_library->DecoderSetDecodeCallback(port, &CDHDecoder::decodeCallback, this);
        if (m_library->DecoderPlay(port, 0)) {
            ++openPorts;
            qCDebug(logMedia) << "CDHDecoder::Start():" << port;
            return true;
        }
        m_library->DecoderCloseStream(port);
    }
    m_port = noPort;
    m_library->DecoderFreePort(port);
    return false;
}

bool CDHDecoder::Stop()
{
    const std::int32_t port = m_port.exchange(noPort);
    if (port < 0)
        return true;
    qCDebug(logMedia) << "CDHDecoder::Stop():" << port;
    m_library->DecoderSetDecodeCallback(port, nullptr, this);
    m_library->DecoderStop(port);
    m_library->DecoderCloseStream(port);
    m_library->DecoderFreePort(port);
    if (--openPorts == 0)
        returnFreedMemory();
    return true;
}

bool CDHDecoder::inputData(const std::uint8_t *data, std::uint32_t size)
{
    const std::int32_t port = m_port;
    if (port < 0)
        return false;
    {
        const std::lock_guard lock(m_sumsMutex);
        m_bytes.add(m_clock->now(), size);
    }
    return m_library->DecoderInputData(port, data, size);
}

StreamFigures CDHDecoder::figures() const
{
    StreamFigures figures;
    sdk::DecoderStatus status = {};
    const std::int32_t port = m_port;
    if (port < 0)
        return figures;
    if (m_library->DecoderGetStatus(port, status)) {
        const auto text = [](const auto &block) {
            const std::string_view content = sdk::blockText(block);
            return QString::fromLatin1(content.data(), static_cast<qsizetype>(content.size()));
        };
        figures.videoCodec = text(status.videoCodec);
        figures.audioCodec = text(status.audioCodec);
        figures.waitingBytes = status.waitingBytes;
        figures.damages = status.damages;
        figures.skippedFrames = status.skippedFrames;
    }
    const std::int64_t now = m_clock->now();
    const std::lock_guard lock(m_sumsMutex);
    figures.framesPerSecond = static_cast<double>(m_frames.sum(now));
    figures.kilobitsPerSecond = static_cast<double>(m_bytes.sum(now)) * 8 / 1000;
    return figures;
}

void CDHDecoder::decodeCallback(std::int32_t /*port*/, const std::uint8_t *data, std::int32_t size,
                                const sdk::DecodedFrameInformation *information, void *user)
{
    if (user && information)
        static_cast<CDHDecoder *>(user)->deliver(data, size, *information);
}

void CDHDecoder::realDataCallback(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                                  std::uint32_t size, std::int64_t parameter, void *user)
{
    auto *decoder = static_cast<CDHDecoder *>(user);
    if (!decoder)
        return;
    switch (static_cast<sdk::RealDataType>(dataType)) {
    case sdk::RealDataType::Stream:
        decoder->inputData(data, size);
        break;
    case sdk::RealDataType::End:
        Q_EMIT decoder->streamEnded(streamHandle, static_cast<sdk::StreamEndReason>(parameter));
        break;
    }
}

void CDHDecoder::deliver(const std::uint8_t *data, std::int32_t size,
                         const sdk::DecodedFrameInformation &information)
{
    m_frameColour = information.colour;
    if (information.type == sdk::DecodedFrameType::Video) {
        const std::lock_guard lock(m_sumsMutex);
        m_frames.add(m_clock->now(), 1);
    }
    m_observer->onDecodedFrame(data, size, information.width, information.height, information.type,
                               information.rate, 0);
}
