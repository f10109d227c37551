#include "sdk/demo/streams/livestream.h"

#include "sdk/demo/streams/liveproduction.h"

namespace sdk::demo {

namespace {

thread_local bool insideDataHandler = false;

}

void LiveStream::setHandler(RealDataHandler handler, void *user)
{
    const std::lock_guard lock(m_mutex);
    if (!m_handler && handler)
        ++m_restarts;
    m_handler = handler;
    m_user = user;
    m_hasHandler = handler != nullptr;
    reportEnd();
}

bool LiveStream::isInsideHandler()
{
    return insideDataHandler;
}

bool LiveStream::prepare(const LiveProduction &production)
{
    const bool isAsked = m_isKeyFrameRequested.exchange(false);
    std::unique_lock lock(m_mutex);
    const std::int64_t restarts = m_restarts;
    lock.unlock();
    if (m_writer && m_sentRestarts == restarts)
        return isAsked;
    m_sentRestarts = restarts;
    m_writer = production.openWriter();
    return true;
}

void LiveStream::send(const EncodedPackets &packets)
{
    for (const AvPointer<AVPacket> &packet : packets) {
        if (!m_writer || !m_writer->write(*packet)) {
            restart();
            return;
        }
    }
    ++m_frames;
    deliver(m_writer->takeBytes());
}

void LiveStream::end(StreamEndReason reason)
{
    const std::lock_guard lock(m_mutex);
    if (!m_hasEnded.exchange(true))
        m_end = reason;
    reportEnd();
}

void LiveStream::reportEnd()
{
    if (!m_end || !m_handler)
        return;
    const StreamEndReason reason = *m_end;
    m_end.reset();
    call(RealDataType::End, {}, static_cast<std::int64_t>(reason));
}

void LiveStream::deliver(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const std::span<const std::uint8_t> chunk = bytes.first(std::min(bytes.size(), maximumChunk));
        bytes = bytes.subspan(chunk.size());
        const std::lock_guard lock(m_mutex);
        if (!m_handler || m_restarts != m_sentRestarts)
            return;
        call(RealDataType::Stream, chunk, 0);
    }
}

void LiveStream::call(RealDataType type, std::span<const std::uint8_t> bytes, std::int64_t parameter) const
{
    insideDataHandler = true;
    m_handler(m_handle, static_cast<std::uint32_t>(type), bytes.data(),
              static_cast<std::uint32_t>(bytes.size()), parameter, m_user);
    insideDataHandler = false;
}

} // namespace sdk::demo
