#include "sdk/ffmpeg/internal/demuxer.h"

#include "sdk/ffmpeg/internal/logging.h"

#include <algorithm>
#include <utility>

namespace sdk::ffmpeg {

namespace {

constexpr int readAhead = 32 * 1024; // maximum: a read returns the available bytes

} // namespace

Demuxer::Demuxer(StreamSource &source, std::stop_token stop) : m_source(source), m_stop(std::move(stop)) {}

Demuxer::~Demuxer()
{
    m_format.reset(); // the context uses the input until it is closed
}

bool Demuxer::open()
{
    auto *buffer = static_cast<unsigned char *>(av_malloc(readAhead));
    m_input.reset(avio_alloc_context(buffer, readAhead, 0, this, &Demuxer::readBytes, nullptr, nullptr));
    if (!m_input) {
        av_free(buffer);
        return false;
    }
    m_input->seekable = 0;

    AVFormatContext *format = avformat_alloc_context();
    if (!format)
        return false;
    format->pb = m_input.get();
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    format->interrupt_callback = {&Demuxer::isInterrupted, this};
    // The container is not probed and frames are not analysed before they are decoded: both would delay the
    // first frames.
    if (avformat_open_input(&format, nullptr, av_find_input_format("matroska"), nullptr) != 0)
        return false; // the call has freed the context
    m_format.reset(format);
    return true;
}

const AVStream *Demuxer::track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const
{
    const std::span<AVStream *> tracks(m_format->streams, m_format->nb_streams);
    const auto isWanted = [&](const AVStream *track) {
        return track->codecpar->codec_type == type &&
               std::find(codecs.begin(), codecs.end(), track->codecpar->codec_id) != codecs.end();
    };
    const auto found = std::find_if(tracks.begin(), tracks.end(), isWanted);
    return found == tracks.end() ? nullptr : *found;
}

bool Demuxer::read(AVPacket &packet)
{
    const LoggedErrors errors;
    const bool isRead = av_read_frame(m_format.get(), &packet) == 0;
    // The start of the next header is an incomplete element at the end of this stream, not damage.
    const bool hasErrors = errors.any() && !m_source.hasReadNextHeader();
    if (hasErrors || (isRead && (packet.flags & AV_PKT_FLAG_CORRUPT) != 0))
        m_isDamaged = true;
    if (isRead)
        m_source.notePacket();
    return isRead;
}

int Demuxer::readBytes(void *demuxer, std::uint8_t *destination, int size)
{
    auto *self = static_cast<Demuxer *>(demuxer);
    const std::size_t count =
        self->m_source.read({destination, static_cast<std::size_t>(std::max(size, 0))}, self->m_stop);
    return count > 0 ? static_cast<int>(count) : AVERROR_EOF;
}

int Demuxer::isInterrupted(void *demuxer)
{
    return static_cast<Demuxer *>(demuxer)->m_stop.stop_requested() ? 1 : 0;
}

} // namespace sdk::ffmpeg
