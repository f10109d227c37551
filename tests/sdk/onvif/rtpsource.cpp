#include "tests/sdk/onvif/rtpsource.h"

#include "sdk/streams/avpointers.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace sdk::onvif {

namespace {

using streams::AvPointer;

void require(bool isTrue, const char *what)
{
    if (!isTrue)
        qFatal("cannot make packets of a test stream: %s", what);
}

constexpr int packetSize = 1200;

/// Packetizes one track.
class Packetizer
{
public:
    Packetizer(const AVStream &track, int number, QList<RtpPacket> &packets)
        : m_number(number), m_packets(packets)
    {
        require(avformat_alloc_output_context2(&m_format, nullptr, "rtp", nullptr) >= 0, "no muxer");
        m_output.reset(avio_alloc_context(static_cast<unsigned char *>(av_malloc(packetSize)), packetSize, 1,
                                          this, nullptr, &Packetizer::write, nullptr));
        m_output->max_packet_size = packetSize;
        m_output->seekable = 0;
        m_format->pb = m_output.get();
        AVStream *stream = avformat_new_stream(m_format, nullptr);
        avcodec_parameters_copy(stream->codecpar, track.codecpar);
        stream->codecpar->codec_tag = 0;
        if (track.codecpar->codec_id == AV_CODEC_ID_MJPEG) { // missing in Matroska
            stream->codecpar->format = AV_PIX_FMT_YUVJ420P;
            stream->codecpar->color_range = AVCOL_RANGE_JPEG;
        }
        stream->time_base = track.time_base;
        require(avformat_write_header(m_format, nullptr) >= 0, "header");
    }
    ~Packetizer()
    {
        m_isEnding = true;
        av_write_trailer(m_format); // frees the buffer of the muxer
        avformat_free_context(m_format);
    }
    Packetizer(const Packetizer &) = delete;
    Packetizer &operator=(const Packetizer &) = delete;

    void add(AVPacket &packet, const AVRational &timeBase)
    {
        packet.stream_index = 0;
        av_packet_rescale_ts(&packet, timeBase, m_format->streams[0]->time_base);
        packet.dts = ++m_decoding; // packets have no decoding time
        packet.pts = std::max(packet.pts, packet.dts);
        require(av_write_frame(m_format, &packet) >= 0, "packet");
    }

    [[nodiscard]] AVFormatContext *format() const { return m_format; }

private:
    static int write(void *packetizer, std::uint8_t *bytes, int size)
    {
        constexpr int firstReport = 200;
        constexpr int lastReport = 204;
        auto *self = static_cast<Packetizer *>(packetizer);
        if (self->m_isEnding)
            return size;
        const bool isControl = size > 1 && bytes[1] >= firstReport && bytes[1] <= lastReport;
        self->m_packets.append({self->m_number * 2 + (isControl ? 1 : 0),
                                QByteArray(reinterpret_cast<const char *>(bytes), size)});
        return size;
    }

    const int m_number;
    QList<RtpPacket> &m_packets;
    AVFormatContext *m_format = nullptr;
    AvPointer<AVIOContext> m_output;
    std::int64_t m_decoding = -1;
    bool m_isEnding = false; ///< the message at the end of the stream is not kept
};

struct Input
{
    const QByteArray &bytes;
    qsizetype position = 0;

    static int read(void *input, std::uint8_t *buffer, int size)
    {
        auto *self = static_cast<Input *>(input);
        const auto count = std::min<qsizetype>(size, self->bytes.size() - self->position);
        std::memcpy(buffer, self->bytes.constData() + self->position, static_cast<std::size_t>(count));
        self->position += count;
        return count > 0 ? static_cast<int>(count) : AVERROR_EOF;
    }
};

} // namespace

RtpSource RtpSource::of(const QByteArray &container)
{
    constexpr int bufferSize = 4096;
    RtpSource source;
    Input bytes{container};
    const AvPointer<AVIOContext> access(
        avio_alloc_context(static_cast<unsigned char *>(av_malloc(bufferSize)), bufferSize, 0, &bytes,
                           &Input::read, nullptr, nullptr));
    AVFormatContext *opened = avformat_alloc_context();
    opened->pb = access.get();
    require(avformat_open_input(&opened, nullptr, av_find_input_format("matroska"), nullptr) == 0,
            "container");
    const AvPointer<AVFormatContext> input(opened);
    std::vector<std::unique_ptr<Packetizer>> tracks;
    std::vector<AVFormatContext *> formats;
    for (unsigned number = 0; number < input->nb_streams; ++number) {
        tracks.push_back(
            std::make_unique<Packetizer>(*input->streams[number], static_cast<int>(number), source.packets));
        formats.push_back(tracks.back()->format());
    }
    std::array<char, 8192> text{};
    require(av_sdp_create(formats.data(), static_cast<int>(formats.size()), text.data(),
                          static_cast<int>(text.size())) == 0,
            "description");
    source.description = text.data();
    const AvPointer<AVPacket> packet(av_packet_alloc());
    while (av_read_frame(input.get(), packet.get()) == 0) {
        const auto number = static_cast<std::size_t>(packet->stream_index);
        tracks.at(number)->add(*packet, input->streams[number]->time_base);
        av_packet_unref(packet.get());
    }
    return source;
}

QByteArray RtpSource::descriptionWithout(const QByteArray &text) const
{
    QByteArray result;
    for (const QByteArray &line : description.split('\n')) {
        if (!line.contains(text) && !line.isEmpty())
            result += line + '\n';
    }
    return result;
}

} // namespace sdk::onvif
