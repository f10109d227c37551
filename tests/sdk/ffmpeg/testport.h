// A port and a receiver that stores its data.
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

inline constexpr std::uint32_t usualBuffer = 8388608;

struct Delivered
{
    QByteArray bytes;
    DecodedFrameInformation information;
    const std::uint8_t *address; ///< address of the delivered bytes
    std::thread::id thread;
};

/// Stores copies of the delivered data. Thread-safe.
class Receiver
{
public:
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

    /// The total number of samples.
    [[nodiscard]] qsizetype sampleCount() const
    {
        qsizetype count = 0;
        for (const Delivered &sound : sounds())
            count += sound.bytes.size() / 2;
        return count;
    }

    std::function<void()> onDelivery; ///< called before data is stored

private:
    mutable std::mutex m_mutex;
    QList<Delivered> m_all;
};

/// A playing port, until the object is destroyed.
class TestPort
{
public:
    /// With a clock it is a port for a live stream, which skips frames that are late on that clock.
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

    bool push(const QByteArray &bytes)
    {
        return library.DecoderInputData(number, reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                        static_cast<std::uint32_t>(bytes.size()));
    }

    /// Pushes data in chunks of that size. False if one was refused.
    bool push(const QByteArray &bytes, qsizetype pieceSize)
    {
        for (qsizetype index = 0; index < bytes.size(); index += pieceSize) {
            if (!push(bytes.mid(index, pieceSize)))
                return false;
        }
        return true;
    }

    [[nodiscard]] DecoderStatus status()
    {
        DecoderStatus status{};
        library.DecoderGetStatus(number, status);
        return status;
    }

    /// True if the port has processed all data.
    [[nodiscard]] bool isIdle() { return status().waitingBytes == 0; }

    [[nodiscard]] QString videoCodec() { return textOf(status().videoCodec); }
    [[nodiscard]] QString audioCodec() { return textOf(status().audioCodec); }

    FfmpegDecoderLibrary library;
    Receiver receiver; // must outlive the port's thread, which ends in the destructor
    std::int32_t number = -1;

private:
    static QString textOf(const std::array<char, 16> &field)
    {
        const std::string_view text = blockText(field);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
};

/// A value of /proc/self/status about this process's memory.
inline double processMegabytes(const QByteArray &name)
{
    for (const QByteArray &line : fileContents(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// The largest mean difference of a plane to the expected frame. The encoder causes about 1. Very large for a
/// frame with the wrong number of bytes.
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
