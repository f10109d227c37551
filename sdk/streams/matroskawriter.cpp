#include "sdk/streams/matroskawriter.h"

#include <algorithm>

namespace sdk::streams {

namespace {

constexpr int bufferSize = 16384;
constexpr AVRational microsecond = {1, 1000000};
constexpr AVRational millisecond = {1, 1000}; // time base of the container

AvPointer<AVCodecParameters> parametersOf(const AVCodecContext &encoder)
{
    AvPointer<AVCodecParameters> parameters(avcodec_parameters_alloc());
    if (!parameters || avcodec_parameters_from_context(parameters.get(), &encoder) < 0)
        return nullptr;
    return parameters;
}

} // namespace

std::unique_ptr<MatroskaWriter> MatroskaWriter::open(const Track &video, const Track *sound)
{
    // Not make_unique: the constructor is private.
    std::unique_ptr<MatroskaWriter> writer(new MatroskaWriter);
    if (!writer->openContainer() || !writer->addTrack(video) || (sound && !writer->addTrack(*sound)) ||
        !writer->writeHeader()) {
        return nullptr;
    }
    return writer;
}

std::unique_ptr<MatroskaWriter> MatroskaWriter::open(const AVCodecContext &video, const AVCodecContext *sound)
{
    const AvPointer<AVCodecParameters> videoParameters = parametersOf(video);
    const AvPointer<AVCodecParameters> soundParameters = sound ? parametersOf(*sound) : nullptr;
    if (!videoParameters || (sound && !soundParameters))
        return nullptr;
    const Track soundOne = {soundParameters.get()};
    return open({videoParameters.get(), video.framerate}, sound ? &soundOne : nullptr);
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
    // Decoding times, which the container does not contain, start below 0.
    m_container->avoid_negative_ts = AVFMT_AVOID_NEG_TS_DISABLED;
    return true;
}

bool MatroskaWriter::addTrack(const Track &track)
{
    AVStream *stream = avformat_new_stream(m_container, nullptr);
    if (!stream || avcodec_parameters_copy(stream->codecpar, track.codec) < 0)
        return false;
    stream->codecpar->codec_tag = 0; // the container has its own
    stream->time_base = millisecond;
    stream->avg_frame_rate = track.frameRate;
    // The initial samples of an encoder are dropped with the other data before the first frame.
    stream->codecpar->initial_padding = 0;
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
    if (!m_hasBegun && (packet.stream_index != videoTrack || (packet.flags & AV_PKT_FLAG_KEY) == 0))
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
    const AVRational timeBase = m_container->streams[packet.stream_index]->time_base;
    std::int64_t &decoding = m_decoding.at(static_cast<std::size_t>(packet.stream_index));
    const std::int64_t time = av_rescale_q(packet.pts - begin, packet.time_base, timeBase);
    decoding = std::max(decoding, time - longestReordering);
    shifted->pts = std::max(time, decoding);
    shifted->dts = decoding;
    shifted->duration = av_rescale_q(packet.duration, packet.time_base, timeBase);
    // The second call ends the cluster, which would otherwise wait for more.
    return av_write_frame(m_container, shifted.get()) >= 0 && av_write_frame(m_container, nullptr) >= 0;
}

int MatroskaWriter::append(void *writer, std::uint8_t *bytes, int size)
{
    auto &written = static_cast<MatroskaWriter *>(writer)->m_bytes;
    written.insert(written.end(), bytes, bytes + size);
    return size;
}

} // namespace sdk::streams
