// A live stream whose frames display their numbers, and the times of these frames.
#pragma once

#include "benchmarks/benchmarkresult.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <vector>

/// A minute of 1440p H.264 with 25 frames per second.
class NumberedStream
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr int frames = 1500;
    static constexpr std::chrono::milliseconds period{40};
    static constexpr std::chrono::milliseconds keyPeriod{2000};

    /// Creates the stream.
    NumberedStream();

    /// False if the stream cannot be created on this host.
    [[nodiscard]] bool isValid() const { return m_chunks.size() >= frames; }

    /// The start of `stream` if the first of `streams` starts at `begin`. Their key frames are evenly spaced.
    [[nodiscard]] static Time startOf(int stream, int streams, Time begin)
    {
        return begin + stream * keyPeriod / streams;
    }

    /// Sends that many copies of the stream in real time: calls `send` with each chunk when it is due.
    /// Returns at the end of the last copy.
    void send(int streams, Time begin,
              const std::function<void(int stream, const QByteArray &chunk)> &send) const;

    /// The number that a frame displays, from its plane Y.
    [[nodiscard]] static int numberOf(const std::uint8_t *luma);

private:
    std::vector<QByteArray> m_chunks; ///< the header, then one for each frame
};

/// The times of a stream's frames. Not thread-safe.
class FrameTimes
{
public:
    using Time = NumberedStream::Time;

    /// `begin` is the start of the stream, see NumberedStream::startOf().
    explicit FrameTimes(Time begin) : m_begin(begin) {}

    /// To be called for each displayed frame. A repeated frame is ignored.
    void note(int number, Time now);

    /// To be called after the end of the stream.
    void end();

    double longestGap = 0; ///< between two frames, or the last one and the end, in milliseconds
    double longestLag = 0; ///< from sending a frame to its display, in milliseconds
    double lastLag = 0;    ///< the longest lag of the last four seconds, in milliseconds
    int shown = 0;         ///< number of displayed frames

private:
    void noteGap(Time now);

    const Time m_begin;
    Time m_last;
    int m_number = -1;
};

/// The worst results of several streams. `skipped` is the total number of dropped frames.
[[nodiscard]] QList<BenchmarkResult> resultsOf(const QString &subject, const std::vector<FrameTimes> &times,
                                               double skipped);
