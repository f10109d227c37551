// Puts what a device sends into the container of live streams.
#pragma once

#include "sdk/onvif/live/internal/pictureassembler.h"
#include "sdk/onvif/live/internal/pictureformat.h"
#include "sdk/onvif/live/internal/timeline.h"
#include "sdk/streams/matroskawriter.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <span>

namespace sdk::onvif {

/// On one thread, except what its parameters say.
class Remuxer
{
public:
    using BytesHandler = std::function<void(std::span<const std::uint8_t>)>;

    /// A picture whose next one does not follow within this time is taken for whole. Longer than a connection
    /// stands still for a lost packet; at more than three pictures a second the next one is earlier.
    static constexpr std::chrono::milliseconds longestWait{300};

    /// `sound` is null for a stream without. The tracks must outlive the remuxer. A true in `mustBeginAnew`,
    /// which any thread may set, is taken back with the header that it brings about. Returns null for a codec
    /// that no decoder port takes.
    [[nodiscard]] static std::unique_ptr<Remuxer> of(const AVStream &picture, const AVStream *sound,
                                                     std::atomic<bool> &mustBeginAnew, BytesHandler handler);
    Remuxer(const Remuxer &) = delete;
    Remuxer &operator=(const Remuxer &) = delete;

    /// Takes a piece of any track. Returns whether it is of the picture track.
    bool add(const AVPacket &packet);

    /// To be called now and then while nothing arrives.
    void deliverWaiting();

    /// To be called when nothing arrives any more.
    void finish() { m_assembler.finish(); }

    /// Whether a picture that needs no earlier one has come.
    [[nodiscard]] bool hasBegun() const { return m_writer != nullptr; }

    /// Whether this computer could not write the container.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

private:
    Remuxer(const AVStream &picture, const AVStream *sound, std::unique_ptr<PictureFormat> format,
            std::atomic<bool> &mustBeginAnew, BytesHandler handler);
    void addPicture(std::span<const std::uint8_t> bytes, std::int64_t time);
    [[nodiscard]] bool begin();
    void write(AVPacket &packet, Timeline &timeline);

    const AVStream &m_picture;
    const AVStream *m_sound;
    const std::unique_ptr<PictureFormat> m_format;
    std::atomic<bool> &m_mustBeginAnew;
    const BytesHandler m_handler;
    PictureAssembler m_assembler;
    std::chrono::steady_clock::time_point m_lastPiece;
    Timeline m_pictureTimes;
    Timeline m_soundTimes;
    std::unique_ptr<streams::MatroskaWriter> m_writer;
    streams::AvPointer<AVCodecParameters> m_written; // the pictures that m_writer was opened for
    bool m_hasFailed = false;
};

} // namespace sdk::onvif
