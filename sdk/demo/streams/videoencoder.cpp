#include "sdk/demo/streams/videoencoder.h"

#include "sdk/demo/site/logging.h"

extern "C" {
#include <libavutil/dict.h>
#include <libavutil/opt.h>
}

#include <mutex>

namespace sdk::demo {

namespace {

/// The interval of key frames: the longest time without an image for a viewer that joins later or has lost
/// data.
constexpr int keyFrameInterval = 2;

/// The lower limit of the quantiser. Without it, a static test card uses the full bit rate and the time to
/// encode it.
constexpr int finestQuantizer = 20;

/// The encoders initialise static tables when they are opened.
std::mutex &openingMutex()
{
    static std::mutex mutex;
    return mutex;
}

const AVCodec *encoderOf(StreamCodec codec)
{
    switch (codec) {
    case StreamCodec::H264:
        return avcodec_find_encoder_by_name("libx264");
    case StreamCodec::H265:
        return avcodec_find_encoder_by_name("libx265");
    case StreamCodec::MotionJpeg:
        return avcodec_find_encoder(AV_CODEC_ID_MJPEG);
    }
    return nullptr;
}

void setColour(AVCodecContext &context, const StreamSettings &settings)
{
    constexpr int firstHeightOfBt709 = 720;
    if (settings.codec == StreamCodec::MotionJpeg) {
        // JPEG has one colour space at every size.
        context.pix_fmt = AV_PIX_FMT_YUVJ420P;
        context.color_range = AVCOL_RANGE_JPEG;
        context.colorspace = AVCOL_SPC_BT470BG;
        return;
    }
    const bool isBt709 = settings.height >= firstHeightOfBt709;
    context.pix_fmt = AV_PIX_FMT_YUV420P;
    context.color_range = AVCOL_RANGE_MPEG;
    context.colorspace = isBt709 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
    context.color_primaries = isBt709 ? AVCOL_PRI_BT709 : AVCOL_PRI_SMPTE170M;
    context.color_trc = isBt709 ? AVCOL_TRC_BT709 : AVCOL_TRC_SMPTE170M;
}

void setRates(AVCodecContext &context, const StreamSettings &settings)
{
    constexpr int finestRate = 1000;
    constexpr int bitsOfKilobit = 1000;
    context.framerate = av_d2q(settings.frameRate, finestRate);
    context.time_base = av_inv_q(context.framerate);
    context.gop_size = std::max(1, qRound(settings.frameRate * keyFrameInterval));
    context.max_b_frames = 0;
    context.bit_rate = static_cast<std::int64_t>(settings.bitRate) * bitsOfKilobit;
    if (settings.codec == StreamCodec::MotionJpeg)
        return;
    context.rc_max_rate = context.bit_rate;
    context.rc_buffer_size = static_cast<int>(context.bit_rate); // one second
    context.qmin = finestQuantizer;
}

/// Private options of the encoder.
AVDictionary *optionsOf(StreamCodec codec)
{
    AVDictionary *options = nullptr;
    if (codec != StreamCodec::MotionJpeg) {
        av_dict_set(&options, "preset", "ultrafast", 0);
        av_dict_set(&options, "tune", "zerolatency", 0);
        av_dict_set(&options, "forced-idr", "1", 0);
    }
    if (codec == StreamCodec::H265) {
        // Without its sample adaptive offset (sao) the encoder leaks memory each time that it is opened. The
        // disabled options add noise to plain areas, or need threads.
        const std::string parameters = "log-level=none:sao=1:selective-sao=1:psy-rd=0:aq-mode=0:pools=none:"
                                       "frame-threads=1:wpp=0:qpmin=" +
                                       std::to_string(finestQuantizer);
        av_dict_set(&options, "x265-params", parameters.c_str(), 0);
    }
    return options;
}

} // namespace

std::unique_ptr<VideoEncoder> VideoEncoder::open(const StreamSettings &settings)
{
    const AVCodec *codec = encoderOf(settings.codec);
    AvPointer<AVCodecContext> context(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!context) {
        qCWarning(demoLog, "No encoder for a live stream (codec %d)", static_cast<int>(settings.codec));
        return nullptr;
    }
    context->log_level_offset = onlyErrors;
    context->width = settings.width;
    context->height = settings.height;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER; // the container's header holds that of the codec
    context->thread_count = 1;
    setColour(*context, settings);
    setRates(*context, settings);
    AVDictionary *options = optionsOf(settings.codec);
    const std::unique_lock lock(openingMutex());
    const int error = avcodec_open2(context.get(), codec, &options);
    av_dict_free(&options);
    if (error < 0) {
        qCWarning(demoLog, "The encoder of a live stream cannot be opened (%d x %d): %s", settings.width,
                  settings.height, avErrorText(error).c_str());
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<VideoEncoder>(new VideoEncoder(std::move(context)));
}

VideoEncoder::~VideoEncoder()
{
    const std::lock_guard lock(openingMutex());
    m_context.reset();
}

bool VideoEncoder::encode(AVFrame &frame, std::int64_t number, bool isKey, EncodedPackets &packets)
{
    frame.pts = number;
    frame.pict_type = isKey ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
    return avcodec_send_frame(m_context.get(), &frame) >= 0 &&
           receivePackets(*m_context, videoTrack, packets);
}

bool receivePackets(AVCodecContext &context, int track, EncodedPackets &packets)
{
    for (;;) {
        AvPointer<AVPacket> packet(av_packet_alloc());
        const int error = packet ? avcodec_receive_packet(&context, packet.get()) : AVERROR(ENOMEM);
        if (error == AVERROR(EAGAIN) || error == AVERROR_EOF)
            return true;
        if (error < 0)
            return false;
        packet->stream_index = track;
        packet->time_base = context.time_base;
        packets.push_back(std::move(packet));
    }
}

} // namespace sdk::demo
