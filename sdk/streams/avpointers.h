// FFmpeg's headers, and owners of its objects.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>
#include <string>

namespace sdk::streams {

/// Frees an object of FFmpeg with the function for its type.
struct AvDelete
{
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVCodecParameters *parameters) const { avcodec_parameters_free(&parameters); }
    void operator()(AVCodecParserContext *parser) const { av_parser_close(parser); }
    /// For input only: MatroskaWriter frees its output context itself.
    void operator()(AVFormatContext *context) const { avformat_close_input(&context); }
    void operator()(AVIOContext *context) const
    {
        av_freep(&context->buffer); // it may have been reallocated
        avio_context_free(&context);
    }
    void operator()(SwsContext *context) const { sws_freeContext(context); }
    void operator()(SwrContext *context) const { swr_free(&context); }
};

/// Owns an object of FFmpeg; null for none.
template<typename Object>
using AvPointer = std::unique_ptr<Object, AvDelete>;

/// The text of an error code (negative) that a function of FFmpeg has returned, in English.
[[nodiscard]] inline std::string avErrorText(int error)
{
    std::string text(AV_ERROR_MAX_STRING_SIZE, '\0');
    av_strerror(error, text.data(), text.size());
    return text.c_str();
}

} // namespace sdk::streams
