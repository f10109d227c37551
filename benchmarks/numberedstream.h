// A live stream whose frames display their numbers, so that the delay of each frame can be measured.
#pragma once

#include "benchmarks/benchmarkresult.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <vector>

/// A minute of 2560 x 1440 H.264 in Matroska with 25 frames per second. Frame N (from 0) displays the number
/// N as black and white squares, one for each bit. Immutable.
class NumberedStream
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr int frames = 1500;                         ///< number of frames
    static constexpr std::chrono::milliseconds period{40};      ///< between two frames
    static constexpr std::chrono::milliseconds keyPeriod{2000}; ///< between two key frames

    /// Creates the stream with the program ffmpeg. Blocks for up to five minutes.
    NumberedStream();

    /// False if the stream could not be created on this host, for example without ffmpeg. The other functions
    /// must not be used then.
    [[nodiscard]] bool isValid() const { return m_chunks.size() >= frames; }

    /// The start of the copy `stream` (from 0) of `streams` copies if the first copy starts at `begin`. The
    /// copies start one after another within a keyPeriod, so that their key frames are evenly spaced.
    [[nodiscard]] static Time startOf(int stream, int streams, Time begin)
    {
        return begin + stream * keyPeriod / streams;
    }

    /// Sends `streams` copies of the stream in real time; the first one starts at `begin`, see startOf().
    /// Calls `send` on this thread with each chunk when it is due, and with the number of its copy, from 0. A
    /// chunk is the header of the container, or one frame. Blocks until all copies are sent completely.
    void send(int streams, Time begin,
              const std::function<void(int stream, const QByteArray &chunk)> &send) const;

    /// The number that a decoded frame displays, from 0. `luma` is its plane Y, with 2,560 bytes per line.
    [[nodiscard]] static int numberOf(const std::uint8_t *luma);

private:
    std::vector<QByteArray> m_chunks; ///< the header, then one for each frame
};

/// Measures the delays and gaps of the displayed frames of one copy of the stream. Not thread-safe.
class FrameTimes
{
public:
    using Time = NumberedStream::Time;

    /// `begin` is the start of this copy, see NumberedStream::startOf().
    explicit FrameTimes(Time begin) : m_begin(begin) {}

    /// Notes that the frame with this number is displayed (or decoded) at the time `now`. Ignored if the
    /// number is that of the last call.
    void note(int number, Time now);

    /// Notes the end of the stream, for longestGap. Called once, after the last note(); the results are
    /// complete then.
    void end();

    // The results.
    double longestGap =
        0; ///< between two frames, or the last one and the end, in milliseconds; 0 without a frame
    double longestLag = 0; ///< from the due time of sending a frame to its display, in milliseconds
    double lastLag = 0;    ///< the longest lag of the frames of the last four seconds, in milliseconds
    int shown = 0;         ///< number of displayed frames

private:
    void noteGap(Time now);

    const Time m_begin;
    Time m_last;
    int m_number = -1;
};

/// Five lines of the table, whose subjects start with `subject`: the worst lag after a minute, the worst lag
/// and the longest gap of all copies, and the percentages of frames that were not decoded and not displayed.
/// `times` has one element for each copy. `skipped` is the number of frames of all copies that were not
/// decoded.
[[nodiscard]] QList<BenchmarkResult> resultsOf(const QString &subject, const std::vector<FrameTimes> &times,
                                               double skipped);
