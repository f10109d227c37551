// A live stream whose pictures show their numbers, and what becomes of them.
#pragma once

#include "benchmarks/figures.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <vector>

/// A minute of 1440p H.264 with 25 pictures a second, as a camera sends it.
class NumberedStream
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr int pictures = 1500;
    static constexpr std::chrono::milliseconds period{40};
    static constexpr std::chrono::milliseconds keyPeriod{2000};

    /// Makes the stream. Its key pictures need no earlier ones.
    NumberedStream();

    /// False when the stream cannot be made here.
    [[nodiscard]] bool isMade() const { return m_pieces.size() >= pictures; }

    /// When `stream` of `streams` begins, if the first one does at `begin`: their key pictures come apart.
    [[nodiscard]] static Time beginOf(int stream, int streams, Time begin)
    {
        return begin + stream * keyPeriod / streams;
    }

    /// Sends so many streams at their times, and returns at the end of the last one.
    void send(int streams, Time begin,
              const std::function<void(int stream, const QByteArray &piece)> &send) const;

    /// The number that a picture shows in its plane Y.
    [[nodiscard]] static int numberOf(const std::uint8_t *luma);

private:
    std::vector<QByteArray> m_pieces; ///< the head and the pictures
};

/// When the pictures of a stream came. Not thread-safe.
class PictureTimes
{
public:
    using Time = NumberedStream::Time;

    explicit PictureTimes(Time begin) : m_begin(begin) {}

    /// To be told of each picture; the same one again is none.
    void note(int number, Time now);

    /// To be told that the stream has ended.
    void end();

    double longestGap = 0; ///< between two pictures, in milliseconds
    double longestLag = 0; ///< of a picture behind its sending
    double lastLag = 0;    ///< the longest one during the last four seconds
    int shown = 0;         ///< pictures

private:
    void noteGap(Time now);

    const Time m_begin;
    Time m_last;
    int m_number = -1;
};

/// The figures of some streams. `skipped` is how many pictures of all were left out.
[[nodiscard]] QList<Figure> figuresOf(const QString &subject, const std::vector<PictureTimes> &times,
                                      double skipped);
