#include "site/rtsp/pipelinetext.h"

using namespace sdk::demo;

namespace site {

namespace {

/// A source of complete frames, ordered by time, with a short queue.
QByteArray source(const QByteArray &name)
{
    return "appsrc name=" + name +
           " is-live=true format=time max-buffers=200 "
           "max-bytes=0 max-time=0 leaky-type=downstream ";
}

QByteArray videoPayloader(StreamCodec codec)
{
    switch (codec) {
    case StreamCodec::H264:
        return "rtph264pay config-interval=-1 aggregate-mode=zero-latency pt=96";
    case StreamCodec::H265:
        return "rtph265pay config-interval=-1 aggregate-mode=zero-latency pt=96";
    case StreamCodec::MotionJpeg:
        return "rtpjpegpay pt=26";
    }
    return {};
}

QByteArray soundPayloader(SoundCodec codec)
{
    switch (codec) {
    case SoundCodec::G711A:
        return "rtppcmapay pt=8";
    case SoundCodec::G711Mu:
        return "rtppcmupay pt=0";
    case SoundCodec::Aac:
        return "rtpmp4gpay pt=97";
    case SoundCodec::Pcm:
        return "audioconvert ! rtpL16pay pt=98";
    case SoundCodec::None:
        break;
    }
    return {};
}

} // namespace

bool hasStreamedSound(const StreamSettings &settings)
{
    return settings.sound != SoundCodec::None;
}

QByteArray pipelineText(const StreamSettings &settings)
{
    QByteArray text = "( " + source("video") + "! " + videoPayloader(settings.codec) + " name=pay0 ";
    if (hasStreamedSound(settings))
        text += source("sound") + "! " + soundPayloader(settings.sound) + " name=pay1 ";
    return text + ")";
}

QByteArray videoCaps(const StreamSettings &settings)
{
    switch (settings.codec) {
    case StreamCodec::H264:
        return "video/x-h264, stream-format=byte-stream, alignment=au";
    case StreamCodec::H265:
        return "video/x-h265, stream-format=byte-stream, alignment=au";
    case StreamCodec::MotionJpeg:
        break;
    }
    return "image/jpeg, width=" + QByteArray::number(settings.width) +
           ", height=" + QByteArray::number(settings.height);
}

QByteArray soundCaps(const StreamSettings &settings, const QByteArray &head)
{
    const QByteArray form = ", channels=1, rate=" + QByteArray::number(settings.samplingFrequency);
    switch (settings.sound) {
    case SoundCodec::G711A:
        return "audio/x-alaw" + form;
    case SoundCodec::G711Mu:
        return "audio/x-mulaw" + form;
    case SoundCodec::Aac:
        return "audio/mpeg, mpegversion=4, stream-format=raw, codec_data=(buffer)" + head.toHex() + form;
    case SoundCodec::Pcm:
        return "audio/x-raw, format=S16LE, layout=interleaved" + form;
    case SoundCodec::None:
        break;
    }
    return {};
}

} // namespace site
