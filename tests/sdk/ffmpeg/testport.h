// A port of the decoder library (the decoder of one stream), and a receiver that stores its decoded data.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "tests/files/filecontents.h"
#include "tests/sdk/ffmpeg/livestream.h"

#include <QList>
#include <QTest>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace sdk::ffmpeg {

/// The size of a port's buffer for encoded data, in bytes.
inline constexpr std::uint32_t usualBuffer = 8388608;

/// A frame or a block of sound that the decoder has delivered.
struct Delivered
{
    QByteArray bytes; ///< a copy
    DecodedFrameInformation information;
    const std::uint8_t *address; ///< address of the delivered bytes, only for comparisons
    std::thread::id thread;      ///< on which they were delivered
};

/// Stores copies of the delivered data. Thread-safe.
class Receiver
{
public:
    /// The decode handler of a port; `user` is the receiver.
    static void handle(std::int32_t, const std::uint8_t *data, std::int32_t size,
                       const DecodedFrameInformation *information, void *user)
    {
        auto *receiver = static_cast<Receiver *>(user);
        if (receiver->onDelivery)
            receiver->onDelivery();
        const std::lock_guard lock(receiver->m_mutex);
        receiver->m_all.append({QByteArray(reinterpret_cast<const char *>(data), size), *information, data,
                                std::this_thread::get_id()});
    }

    /// The data of this type so far, the oldest first.
    [[nodiscard]] QList<Delivered> all(DecodedFrameType type) const
    {
        const std::lock_guard lock(m_mutex);
        QList<Delivered> found;
        std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found),
                     [type](const Delivered &one) { return one.information.type == type; });
        return found;
    }
    [[nodiscard]] QList<Delivered> frames() const { return all(DecodedFrameType::Video); }
    [[nodiscard]] QList<Delivered> sounds() const { return all(DecodedFrameType::Sound); }

    /// The total number of 16-bit samples, of all channels together.
    [[nodiscard]] qsizetype sampleCount() const
    {
        qsizetype count = 0;
        for (const Delivered &sound : sounds())
            count += sound.bytes.size() / 2;
        return count;
    }

    std::function<void()> onDelivery; ///< called on the decoder's thread before data is stored; may be empty

private:
    mutable std::mutex m_mutex;
    QList<Delivered> m_all;
};

/// A playing port of a separate library, until the object is destroyed.
class TestPort
{
public:
    /// `bufferSize` is in bytes. With a clock it is a port for a live stream, which skips frames that are
    /// late on that clock. Ends the process if the port cannot be opened.
    explicit TestPort(std::uint32_t bufferSize = usualBuffer,
                      const std::shared_ptr<const Clock> &liveClock = nullptr)
        : library(liveClock ? liveClock : std::make_shared<SystemClock>())
    {
        if (!library.DecoderAllocPort(number) || (liveClock && !library.DecoderSetStreamMode(number, 0)) ||
            !library.DecoderOpenStream(number, nullptr, 0, bufferSize) ||
            !library.DecoderSetDecodeCallback(number, &Receiver::handle, &receiver) ||
            !library.DecoderPlay(number, 0)) {
            qFatal("a port cannot be opened");
        }
    }
    ~TestPort() { library.DecoderFreePort(number); }
    TestPort(const TestPort &) = delete;
    TestPort &operator=(const TestPort &) = delete;

    /// Passes encoded data to the port. False if it was refused, because the buffer is full.
    bool push(const QByteArray &bytes)
    {
        return library.DecoderInputData(number, reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                        static_cast<std::uint32_t>(bytes.size()));
    }

    /// Passes encoded data to the port in chunks of that size. False if one was refused; the rest is not
    /// passed then.
    bool push(const QByteArray &bytes, qsizetype pieceSize)
    {
        for (qsizetype index = 0; index < bytes.size(); index += pieceSize) {
            if (!push(bytes.mid(index, pieceSize)))
                return false;
        }
        return true;
    }

    /// The current status of the port: codecs, waiting bytes and counters.
    [[nodiscard]] DecoderStatus status()
    {
        DecoderStatus status{};
        library.DecoderGetStatus(number, status);
        return status;
    }

    /// True if the port has processed all data.
    [[nodiscard]] bool isIdle() { return status().waitingBytes == 0; }

    // The names of the codecs, such as "H.264"; empty before the first data.
    [[nodiscard]] QString videoCodec() { return textOf(status().videoCodec); }
    [[nodiscard]] QString audioCodec() { return textOf(status().audioCodec); }

    FfmpegDecoderLibrary library;
    Receiver receiver;        // must outlive the port's thread, which ends in the destructor
    std::int32_t number = -1; ///< of the port

private:
    static QString textOf(const std::array<char, 16> &field)
    {
        const std::string_view text = blockText(field);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
};

/// A value of /proc/self/status about the memory of this process, such as "VmRSS", in MiB; 0 if it is
/// missing.
inline double processMegabytes(const QByteArray &name)
{
    for (const QByteArray &line : fileContents(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// How much a decoded frame (I420) differs from the expected one: the mean absolute difference of the values
/// of a plane, 0 to 255, of the worst of its three planes. The encoder causes about 1. 255 for a frame with
/// the wrong number of bytes.
inline double distance(const Delivered &frame, const Patches &patches)
{
    constexpr double far = 255;
    const int width = frame.information.width;
    const int height = frame.information.height;
    const int halfWidth = (width + 1) / 2;
    const int halfHeight = (height + 1) / 2;
    if (width <= 0 || frame.bytes.size() != width * height + 2 * halfWidth * halfHeight)
        return far;
    double largest = 0;
    const auto *value = reinterpret_cast<const std::uint8_t *>(frame.bytes.constData());
    for (int plane = 0; plane < 3; ++plane) {
        const int wide = plane == 0 ? width : halfWidth;
        const int high = plane == 0 ? height : halfHeight;
        double sum = 0;
        for (int y = 0; y < high; ++y) {
            for (int x = 0; x < wide; ++x, ++value) {
                const Patches::Colour &colour = patches.at(x, y, wide, high);
                sum += std::abs(*value - (plane == 0 ? colour.y : plane == 1 ? colour.u : colour.v));
            }
        }
        largest = std::max(largest, sum / (wide * high));
    }
    return largest;
}

} // namespace sdk::ffmpeg
