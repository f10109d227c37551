#include "sdk/ffmpeg/internal/decoderport.h"

#include "sdk/blocktext.h"
#include "sdk/clock.h"
#include "sdk/ffmpeg/internal/logging.h"

#include <system_error>

namespace sdk::ffmpeg {

namespace {

thread_local bool insideHandler = false;

} // namespace

DecoderPort::~DecoderPort()
{
    stop();
}

bool DecoderPort::open(std::span<const std::uint8_t> header, std::size_t bufferSize)
{
    if (bufferSize == 0 || currentInput())
        return false;
    const auto input = std::make_shared<Input>(bufferSize);
    if (!input->queue.put(header, m_clock->now()))
        return false;
    const std::lock_guard lock(m_mutex);
    m_input = input;
    m_status = {};
    return true;
}

void DecoderPort::setHandler(DecodeHandler handler, void *user)
{
    const std::lock_guard lock(m_handlerMutex);
    m_handler = handler;
    m_user = user;
}

bool DecoderPort::play()
{
    if (!currentInput() || m_thread.joinable())
        return false;
    try {
        m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
    } catch (const std::system_error &error) {
        qCWarning(ffmpegLog, "No thread to decode on: %s", error.what());
        return false;
    }
    return true;
}

bool DecoderPort::input(std::span<const std::uint8_t> bytes)
{
    const std::shared_ptr<Input> input = currentInput();
    return input && input->queue.put(bytes, m_clock->now());
}

bool DecoderPort::stop()
{
    if (!m_thread.joinable())
        return false;
    m_thread.request_stop();
    m_thread.join();
    return true;
}

bool DecoderPort::close()
{
    stop();
    const std::lock_guard lock(m_mutex);
    const bool wasOpen = m_input != nullptr;
    m_input.reset();
    return wasOpen;
}

DecoderStatus DecoderPort::status() const
{
    const std::lock_guard lock(m_mutex);
    DecoderStatus status = m_status;
    status.waitingBytes = m_input ? static_cast<std::uint32_t>(m_input->queue.waitingBytes()) : 0;
    return status;
}

bool DecoderPort::isInsideHandler()
{
    return insideHandler;
}

void DecoderPort::run(const std::stop_token &stop)
{
    const std::shared_ptr<Input> input = currentInput();
    StreamSource &source = input->source;
    for (;;) {
        if (!source.start(stop))
            return;
        if (source.skipped() > 0)
            damaged();
        StreamDecoder(source, m_ring, *this, m_isLive ? m_clock.get() : nullptr, stop).run();
        if (stop.stop_requested())
            return;
        if (!source.hasNext())
            damaged(); // the demuxer has ended the stream
    }
}

void DecoderPort::codecsFound(std::string_view video, std::string_view audio)
{
    const std::lock_guard lock(m_mutex);
    setBlockText(m_status.videoCodec, video);
    setBlockText(m_status.audioCodec, audio);
}

void DecoderPort::decoded(std::span<const std::uint8_t> bytes, const DecodedFrameInformation &information)
{
    const std::lock_guard lock(m_handlerMutex);
    if (!m_handler)
        return;
    insideHandler = true;
    m_handler(m_number, bytes.data(), static_cast<std::int32_t>(bytes.size()), &information, m_user);
    insideHandler = false;
}

void DecoderPort::damaged()
{
    const std::lock_guard lock(m_mutex);
    ++m_status.damages;
}

void DecoderPort::skipped(int frames)
{
    const std::lock_guard lock(m_mutex);
    m_status.skippedFrames += static_cast<std::uint32_t>(frames);
}

std::shared_ptr<DecoderPort::Input> DecoderPort::currentInput() const
{
    const std::lock_guard lock(m_mutex);
    return m_input;
}

} // namespace sdk::ffmpeg
