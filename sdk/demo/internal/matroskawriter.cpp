#include "sdk/demo/internal/matroskawriter.h"

#include "sdk/demo/internal/logging.h"

namespace sdk::demo {

namespace {

constexpr int bufferSize = 16384;
constexpr AVRational microsecond = {1, 1000000};

} // namespace

std::unique_ptr<MatroskaWriter> MatroskaWriter::open(const AVCodecContext &picture,
                                                     const AVCodecContext *sound)
{
    // Not make_unique: the constructor is private.
    std::unique_ptr<MatroskaWriter> writer(new MatroskaWriter);
    if (!writer->openContainer() || !writer->addTrack(picture) || (sound && !writer->addTrack(*sound)) ||
        !writer->writeHeader()) {
        qCWarning(demoLog, "The container of a live stream cannot be written");
        return nullptr;
    }
    return writer;
}

MatroskaWriter::~MatroskaWriter()
{
    if (!m_container)
        return;
    if (m_container->pb) {
        av_freep(&m_container->pb->buffer);
        avio_context_free(&m_container->pb);
    }
    avformat_free_context(m_container);
}

bool MatroskaWriter::openContainer()
{
    if (avformat_alloc_output_context2(&m_container, nullptr, "matroska", nullptr) < 0)
        return false;
    auto *buffer = static_cast<unsigned char *>(av_malloc(bufferSize));
    if (!buffer)
        return false;
    m_container->pb = avio_alloc_context(buffer, bufferSize, 1, this, nullptr, &append, nullptr);
    if (!m_container->pb) {
        av_free(buffer);
        return false;
    }
    m_container->pb->seekable = 0;
    return true;
}

bool MatroskaWriter::addTrack(const AVCodecContext &encoder)
{
    AVStream *track = avformat_new_stream(m_container, nullptr);
    if (!track || avcodec_parameters_from_context(track->codecpar, &encoder) < 0)
        return false;
    track->time_base = encoder.time_base;
    track->avg_frame_rate = encoder.framerate;
    // The samples that an encoder begins with are left out with the rest of what comes before the picture.
    track->codecpar->initial_padding = 0;
    return true;
}

bool MatroskaWriter::writeHeader()
{
    AVDictionary *options = nullptr;
    av_dict_set(&options, "live", "1", 0);
    const int error = avformat_write_header(m_container, &options);
    av_dict_free(&options);
    return error >= 0 && av_write_frame(m_container, nullptr) >= 0;
}

bool MatroskaWriter::write(const AVPacket &packet)
{
    if (!m_hasBegun && (packet.stream_index != pictureTrack || (packet.flags & AV_PKT_FLAG_KEY) == 0))
        return true;
    if (!m_hasBegun)
        m_begin = av_rescale_q(packet.pts, packet.time_base, microsecond);
    m_hasBegun = true;
    AvPointer<AVPacket> shifted(av_packet_clone(&packet));
    if (!shifted)
        return false;
    const std::int64_t begin = av_rescale_q(m_begin, microsecond, packet.time_base);
    if (packet.pts < begin)
        return true;
    shifted->pts -= begin;
    shifted->dts = shifted->pts;
    av_packet_rescale_ts(shifted.get(), packet.time_base,
                         m_container->streams[packet.stream_index]->time_base);
    // The second call ends the cluster, which would otherwise wait for more.
    return av_write_frame(m_container, shifted.get()) >= 0 && av_write_frame(m_container, nullptr) >= 0;
}

int MatroskaWriter::append(void *writer, std::uint8_t *bytes, int size)
{
    auto &written = static_cast<MatroskaWriter *>(writer)->m_bytes;
    written.insert(written.end(), bytes, bytes + size);
    return size;
}

} // namespace sdk::demo
