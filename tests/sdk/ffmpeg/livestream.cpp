#include "tests/sdk/ffmpeg/livestream.h"

#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

namespace sdk::ffmpeg {

namespace {

void require(bool isTrue, const char *what)
{
    if (!isTrue)
        qFatal("cannot make a test stream: %s", what);
}

} // namespace

Patches Patches::numbered(int number)
{
    const int step = number * 30 % 150;
    return {{{{50 + step, 90, 160}, {200 - step, 160, 90}, {80 + step, 170, 170}, {180 - step, 100, 100}}}};
}

LiveStream::LiveStream(const VideoFormat *video, const SoundFormat *sound)
{
    avformat_alloc_output_context2(&m_format, nullptr, "matroska", nullptr);
    constexpr int bufferSize = 4096;
    m_output.reset(avio_alloc_context(static_cast<unsigned char *>(av_malloc(bufferSize)), bufferSize, 1,
                                      this, nullptr, &LiveStream::write, nullptr));
    require(m_format && m_output, "no memory");
    m_output->seekable = 0;
    m_format->pb = m_output.get();
    if (video) {
        m_videoEncoder = addTrack(video->encoder, video->options, [&](AVCodecContext &context) {
            context.width = video->width;
            context.height = video->height;
            context.pix_fmt = video->pixels;
            context.time_base = {1, video->rate};
            context.framerate = {video->rate, 1};
            context.gop_size = video->keyEvery;
            context.colorspace = video->colourSpace;
            context.color_range = video->range;
            context.thread_count = 1;
            context.flags |= AV_CODEC_FLAG_QSCALE; // for MJPEG
            context.global_quality = 2 * FF_QP2LAMBDA;
        });
    }
    if (sound) {
        m_soundEncoder = addTrack(sound->encoder, "", [&](AVCodecContext &context) {
            context.sample_rate = sound->rate;
            context.sample_fmt =
                std::strcmp(sound->encoder, "aac") == 0 ? AV_SAMPLE_FMT_FLTP : AV_SAMPLE_FMT_S16;
            context.time_base = {1, sound->rate};
            av_channel_layout_default(&context.ch_layout, sound->channels);
        });
    }
    AVDictionary *options = nullptr;
    av_dict_set(&options, "live", "1", 0);
    require(avformat_write_header(m_format, &options) >= 0, "header");
    av_dict_free(&options);
    m_head = takeBytes();
}

LiveStream::~LiveStream()
{
    avformat_free_context(m_format);
}

AvPointer<AVCodecContext> LiveStream::addTrack(const char *encoder, const char *options,
                                               const std::function<void(AVCodecContext &)> &set)
{
    const AVCodec *codec = avcodec_find_encoder_by_name(encoder);
    require(codec, encoder);
    AvPointer<AVCodecContext> context(avcodec_alloc_context3(codec));
    set(*context);
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVDictionary *settings = nullptr;
    if (codec->id == AV_CODEC_ID_H264 || codec->id == AV_CODEC_ID_HEVC) {
        av_dict_set(&settings, "preset", "ultrafast", 0);
        av_dict_set(&settings, "tune", "zerolatency", 0);
        av_dict_set(&settings, "crf", "8", 0);
        av_dict_set(&settings, "x265-params", "log-level=none:pools=none:frame-threads=1", 0);
    }
    av_dict_parse_string(&settings, options, "=", ":", 0);
    require(avcodec_open2(context.get(), codec, &settings) == 0, encoder);
    av_dict_free(&settings);
    AVStream *track = avformat_new_stream(m_format, nullptr);
    avcodec_parameters_from_context(track->codecpar, context.get());
    track->time_base = context->time_base;
    track->avg_frame_rate = context->framerate;
    return context;
}

QByteArray LiveStream::frame(const Patches &patches)
{
    const AvPointer<AVFrame> frame(av_frame_alloc());
    frame->format = m_videoEncoder->pix_fmt;
    frame->width = m_videoEncoder->width;
    frame->height = m_videoEncoder->height;
    require(av_frame_get_buffer(frame.get(), 0) == 0, "no memory");
    fill(*frame, patches);
    frame->pts = m_frames++;
    frame->quality = m_videoEncoder->global_quality;
    encode(*m_videoEncoder, frame.get(), 0);
    return takeBytes();
}

QByteArray LiveStream::frames(int count, int first)
{
    QByteArray bytes;
    for (int number = first; number < first + count; ++number)
        bytes += frame(Patches::numbered(number));
    return bytes;
}

QByteArray LiveStream::tone(int samples)
{
    constexpr double frequency = 500;
    constexpr double amplitude = 0.25;
    constexpr double largest = 32767;
    const int piece = m_soundEncoder->frame_size > 0 ? m_soundEncoder->frame_size : samples;
    for (int done = 0; done < samples; done += piece) {
        const AvPointer<AVFrame> frame(av_frame_alloc());
        frame->format = m_soundEncoder->sample_fmt;
        frame->nb_samples = piece;
        frame->sample_rate = m_soundEncoder->sample_rate;
        av_channel_layout_copy(&frame->ch_layout, &m_soundEncoder->ch_layout);
        require(av_frame_get_buffer(frame.get(), 0) == 0, "no memory");
        const int channels = frame->ch_layout.nb_channels;
        for (int sample = 0; sample < piece; ++sample) {
            const double time = static_cast<double>(m_samples + sample) / frame->sample_rate;
            const double value = amplitude * std::sin(2 * std::numbers::pi * frequency * time);
            for (int channel = 0; channel < channels; ++channel) {
                if (frame->format == AV_SAMPLE_FMT_FLTP)
                    reinterpret_cast<float *>(frame->extended_data[channel])[sample] =
                        static_cast<float>(value);
                else
                    reinterpret_cast<std::int16_t *>(frame->data[0])[sample * channels + channel] =
                        static_cast<std::int16_t>(value * largest);
            }
        }
        frame->pts = m_samples;
        m_samples += piece;
        encode(*m_soundEncoder, frame.get(), m_videoEncoder ? 1 : 0);
    }
    return takeBytes();
}

void LiveStream::encode(AVCodecContext &encoder, const AVFrame *frame, int track)
{
    require(avcodec_send_frame(&encoder, frame) == 0, "encode");
    const AvPointer<AVPacket> packet(av_packet_alloc());
    while (avcodec_receive_packet(&encoder, packet.get()) == 0) {
        packet->stream_index = track;
        av_packet_rescale_ts(packet.get(), encoder.time_base, m_format->streams[track]->time_base);
        require(av_write_frame(m_format, packet.get()) >= 0, "write");
        av_write_frame(m_format, nullptr); // ends the cluster
    }
}

void LiveStream::fill(AVFrame &frame, const Patches &patches) const
{
    const AVPixFmtDescriptor *descriptor = av_pix_fmt_desc_get(m_videoEncoder->pix_fmt);
    for (int component = 0; component < descriptor->nb_components; ++component) {
        const AVComponentDescriptor &layout = descriptor->comp[component];
        const bool isChroma = component > 0 && (descriptor->flags & AV_PIX_FMT_FLAG_RGB) == 0;
        const int width = isChroma ? AV_CEIL_RSHIFT(frame.width, descriptor->log2_chroma_w) : frame.width;
        const int height = isChroma ? AV_CEIL_RSHIFT(frame.height, descriptor->log2_chroma_h) : frame.height;
        for (int y = 0; y < height; ++y) {
            std::uint8_t *line = frame.data[layout.plane] + y * frame.linesize[layout.plane] + layout.offset;
            for (int x = 0; x < width; ++x) {
                const Patches::Colour &colour = patches.at(x, y, width, height);
                const int value = component == 0 ? colour.y : component == 1 ? colour.u : colour.v;
                if (layout.depth > 8)
                    reinterpret_cast<std::uint16_t *>(line)[x] =
                        static_cast<std::uint16_t>(value << (layout.depth - 8));
                else
                    line[x * layout.step] = static_cast<std::uint8_t>(value);
            }
        }
    }
}

QByteArray LiveStream::takeBytes()
{
    avio_flush(m_output.get());
    return std::exchange(m_bytes, {});
}

int LiveStream::write(void *stream, std::uint8_t *bytes, int size)
{
    static_cast<LiveStream *>(stream)->m_bytes.append(reinterpret_cast<const char *>(bytes), size);
    return size;
}

} // namespace sdk::ffmpeg
