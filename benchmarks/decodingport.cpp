#include "benchmarks/decodingport.h"

#include <chrono>
#include <thread>

DecodingPort::DecodingPort()
{
    constexpr std::uint32_t bufferSize = 8388608;
    m_library.DecoderAllocPort(m_port);
    m_library.DecoderOpenStream(m_port, nullptr, 0, bufferSize);
    m_library.DecoderSetDecodeCallback(m_port, &DecodingPort::count, this);
    m_library.DecoderPlay(m_port, 0);
}

DecodingPort::~DecodingPort()
{
    m_library.DecoderFreePort(m_port);
}

void DecodingPort::push(std::span<const std::uint8_t> bytes)
{
    while (!m_library.DecoderInputData(m_port, bytes.data(), static_cast<std::uint32_t>(bytes.size())))
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void DecodingPort::waitFor(int frames)
{
    constexpr std::chrono::minutes patience{2};
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, patience, [&] { return m_frames >= frames; });
}

void DecodingPort::count(std::int32_t, const std::uint8_t *, std::int32_t,
                         const sdk::DecodedFrameInformation *, void *user)
{
    auto *port = static_cast<DecodingPort *>(user);
    const std::lock_guard lock(port->m_mutex);
    ++port->m_frames;
    port->m_changed.notify_one();
}
