// Owners of what the codec libraries allocate.
#pragma once

#include <memory>
#include <string>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

namespace sdk::demo {

struct AvDeleter
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};

template<typename Object>
using AvPointer = std::unique_ptr<Object, AvDeleter>;

/// Encoded pictures and sound of a stream, in the order in which they are sent: each has the time base of its
/// encoder, and one of these as its stream's index.
using EncodedPackets = std::vector<AvPointer<AVPacket>>;
inline constexpr int pictureTrack = 0;
inline constexpr int soundTrack = 1;

/// For AVCodecContext::log_level_offset: encoders tell of everything that they do as if somebody had asked.
inline constexpr int onlyErrors = AV_LOG_INFO - AV_LOG_ERROR;

/// What a failed call of the libraries returned, in words.
[[nodiscard]] inline std::string avErrorText(int error)
{
    std::string text(AV_ERROR_MAX_STRING_SIZE, '\0');
    av_strerror(error, text.data(), text.size());
    return text.c_str();
}

} // namespace sdk::demo
