// Live streams of the simulated site, decoded.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

#include <algorithm>
#include <cstring>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace sdk::demo {

struct DecodedPicture
{
    std::int64_t time = 0; ///< ms from the stream's begin
    QSize size;
    bool isKey = false;
    QByteArray luma;
};

/// A stream from one header to the next.
struct DecodedStream
{
    AVCodecID pictureCodec = AV_CODEC_ID_NONE;
    AVColorSpace colours = AVCOL_SPC_UNSPECIFIED;
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    QList<DecodedPicture> pictures;
    qsizetype pictureBytes = 0;
    AVCodecID soundCodec = AV_CODEC_ID_NONE;
    int samplingFrequency = 0;
    QList<float> samples;
};

/// Reads bytes in memory as a stream that cannot be seeked in.
class StreamReader
{
public:
    explicit StreamReader(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    /// Without pictures when the bytes are no stream.
    [[nodiscard]] DecodedStream decoded()
    {
        constexpr int bufferSize = 4096;
        AVFormatContext *input = avformat_alloc_context();
        AVIOContext *access = avio_alloc_context(static_cast<unsigned char *>(av_malloc(bufferSize)),
                                                 bufferSize, 0, this, &StreamReader::read, nullptr, nullptr);
        access->seekable = 0;
        input->pb = access;
        DecodedStream stream;
        if (avformat_open_input(&input, nullptr, av_find_input_format("matroska"), nullptr) == 0) {
            decode(*input, stream);
            avformat_close_input(&input);
        }
        av_freep(&access->buffer);
        avio_context_free(&access);
        return stream;
    }

private:
    static int read(void *reader, std::uint8_t *buffer, int size)
    {
        auto *self = static_cast<StreamReader *>(reader);
        const auto count = std::min<qsizetype>(size, self->m_bytes.size() - self->m_place);
        std::memcpy(buffer, self->m_bytes.constData() + self->m_place, static_cast<std::size_t>(count));
        self->m_place += count;
        return count > 0 ? static_cast<int>(count) : AVERROR_EOF;
    }

    static void decode(AVFormatContext &input, DecodedStream &stream)
    {
        std::vector<AVCodecContext *> decoders;
        for (unsigned place = 0; place < input.nb_streams; ++place) {
            const AVCodecParameters &codec = *input.streams[place]->codecpar;
            AVCodecContext *decoder = avcodec_alloc_context3(avcodec_find_decoder(codec.codec_id));
            avcodec_parameters_to_context(decoder, &codec);
            avcodec_open2(decoder, decoder->codec, nullptr);
            decoders.push_back(decoder);
            if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
                stream.pictureCodec = codec.codec_id;
            } else {
                stream.soundCodec = codec.codec_id;
                stream.samplingFrequency = codec.sample_rate;
            }
        }
        AVPacket *packet = av_packet_alloc();
        AVFrame *frame = av_frame_alloc();
        while (av_read_frame(&input, packet) == 0) {
            AVCodecContext *decoder = decoders.at(static_cast<std::size_t>(packet->stream_index));
            if (decoder->codec_type == AVMEDIA_TYPE_VIDEO)
                stream.pictureBytes += packet->size;
            avcodec_send_packet(decoder, packet);
            while (avcodec_receive_frame(decoder, frame) == 0)
                take(*frame, *decoder, stream);
            av_packet_unref(packet);
        }
        for (AVCodecContext *decoder : decoders) { // what they still hold
            avcodec_send_packet(decoder, nullptr);
            while (avcodec_receive_frame(decoder, frame) == 0)
                take(*frame, *decoder, stream);
            avcodec_free_context(&decoder);
        }
        av_frame_free(&frame);
        av_packet_free(&packet);
    }

    static void take(const AVFrame &frame, const AVCodecContext &decoder, DecodedStream &stream)
    {
        if (decoder.codec_type == AVMEDIA_TYPE_VIDEO) {
            stream.colours = frame.colorspace;
            stream.range = frame.color_range;
            stream.pictures.append(
                {frame.pts, {frame.width, frame.height}, frame.key_frame == 1, luma(frame)});
            return;
        }
        constexpr float loudest = 32768;
        for (int place = 0; place < frame.nb_samples; ++place) {
            stream.samples.append(frame.format == AV_SAMPLE_FMT_FLTP
                                      ? reinterpret_cast<const float *>(frame.data[0])[place]
                                      : reinterpret_cast<const std::int16_t *>(frame.data[0])[place] /
                                            loudest);
        }
    }

    static QByteArray luma(const AVFrame &frame)
    {
        QByteArray bytes;
        for (int line = 0; line < frame.height; ++line)
            bytes.append(reinterpret_cast<const char *>(frame.data[0]) + line * frame.linesize[0],
                         frame.width);
        return bytes;
    }

    QByteArray m_bytes;
    qsizetype m_place = 0;
};

/// The streams of `bytes`, each from its header on.
inline QList<DecodedStream> decodedStreams(const QByteArray &bytes)
{
    const QByteArray header = QByteArray::fromHex("1a45dfa3");
    QList<DecodedStream> streams;
    for (qsizetype begin = bytes.indexOf(header); begin >= 0;) {
        const qsizetype next = bytes.indexOf(header, begin + 1);
        streams.append(StreamReader(bytes.mid(begin, next < 0 ? -1 : next - begin)).decoded());
        begin = next;
    }
    return streams;
}

/// How much two planes differ, on average.
inline double difference(const QByteArray &one, const QByteArray &other)
{
    double sum = 0;
    for (qsizetype place = 0; place < std::min(one.size(), other.size()); ++place)
        sum += std::abs(static_cast<unsigned char>(one[place]) - static_cast<unsigned char>(other[place]));
    return sum / static_cast<double>(std::max<qsizetype>(1, std::min(one.size(), other.size())));
}

} // namespace sdk::demo
