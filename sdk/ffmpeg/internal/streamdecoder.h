// Decodes one live stream.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/demuxer.h"
#include "sdk/ffmpeg/internal/packetbacklog.h"
#include "sdk/ffmpeg/internal/pictureconverter.h"
#include "sdk/ffmpeg/internal/picturering.h"
#include "sdk/ffmpeg/internal/soundconverter.h"
#include "sdk/ffmpeg/internal/trackdecoder.h"

#include <string_view>

namespace sdk {
class Clock;
}

namespace sdk::ffmpeg {

/// Who is told what comes out of a stream, on the decoding thread.
class StreamObserver
{
public:
    virtual ~StreamObserver() = default;

    /// The encodings as DecoderStatus has them; empty for a track that is not there.
    virtual void codecsFound(std::string_view video, std::string_view audio) = 0;

    /// A picture or a piece of sound. Pictures are in the ring, sound ends with the call.
    virtual void decoded(std::span<const std::uint8_t> bytes, const DecodedFrameInformation &information) = 0;

    /// A piece of the stream could not be decoded.
    virtual void damaged() = 0;

    /// So many pictures were left out, because they were too late.
    virtual void skipped(int pictures) = 0;
};

/// From its head to its end, on one thread.
class StreamDecoder
{
public:
    /// By `liveClock`, on which the bytes of `source` arrived, it leaves out what is too late; without one
    /// nothing is.
    StreamDecoder(StreamSource &source, PictureRing &ring, StreamObserver &observer, const Clock *liveClock,
                  std::stop_token stop);

    /// Decodes until the stream ends, is given up or a stop is requested. Returns false when it has no head
    /// that can be read.
    bool run();

private:
    [[nodiscard]] bool open();

    /// Gets the next piece into the backlog and, while that is late, those that wait behind it. Returns false
    /// at the end.
    [[nodiscard]] bool fillBacklog();
    [[nodiscard]] bool readPiece();
    void skipLatePictures();
    void reportLeftOut();
    [[nodiscard]] bool decode(const AVPacket &packet);
    void deliverPicture(const AVFrame &frame);
    void deliverSound(const AVFrame &frame);

    StreamSource &m_source;
    PictureRing &m_ring;
    StreamObserver &m_observer;
    const Clock *const m_liveClock;
    const std::stop_token m_stop;
    Demuxer m_demuxer;
    PacketBacklog m_backlog;
    bool m_hasEnded = false;                  // nothing more can be read
    bool m_isHurried = false;                 // the piece that is decoded is late
    std::int64_t m_delivery = 0;              // of the last picture, on the live clock
    std::unique_ptr<TrackDecoder> m_pictures; // null without such a track
    std::unique_ptr<TrackDecoder> m_sound;
    PictureConverter m_pictureConverter;
    SoundConverter m_soundConverter;
};

} // namespace sdk::ffmpeg
