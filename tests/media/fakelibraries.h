// Device libraries without devices and decoder: they record their calls and deliver the data of a test.
#pragma once

#include "device/registry/devicebase.h"
#include "device/registry/devicefactory.h"
#include "sdk/decoderlibrary.h"
#include "sdk/demo/steppableclock.h"
#include "sdk/sdklibraries.h"
#include "tests/media/quietnetlibrary.h"

#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/// Calls in their order, as "Operation(arguments)". Thread-safe.
class LibraryCalls
{
public:
    /// Records a call. Returns true if the operation is to succeed.
    bool add(const QString &operation, const QString &arguments)
    {
        const std::lock_guard lock(m_mutex);
        m_calls.append(operation + '(' + arguments + ')');
        return !m_failing.contains(operation);
    }

    /// From now on, only the operations of that name fail; initially none does.
    void failOnly(const QString &operation)
    {
        const std::lock_guard lock(m_mutex);
        m_failing = {operation};
    }

    /// Returns the calls since the last take(), and removes them.
    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_calls, {});
    }

private:
    std::mutex m_mutex;
    QStringList m_calls;
    QSet<QString> m_failing;
};

/// A decoder library with one port, which decodes nothing: deliver() passes decoded data to the user of the
/// port.
class FakeDecoder : public sdk::DecoderLibrary
{
public:
    static constexpr std::int32_t firstPort = 3; ///< the number of the port

    /// The object keeps `calls`.
    explicit FakeDecoder(std::shared_ptr<LibraryCalls> calls) : m_ownedCalls(std::move(calls)) {}
    /// `calls` must outlive the object.
    explicit FakeDecoder(LibraryCalls &calls) : m_calls(calls) {}

    bool DecoderAllocPort(std::int32_t &port) override
    {
        if (!m_calls.add("DecoderAllocPort", {}))
            return false;
        port = firstPort;
        return true;
    }
    bool DecoderSetStreamMode(std::int32_t port, std::uint32_t mode) override
    {
        return m_calls.add("DecoderSetStreamMode", QString("%1, %2").arg(port).arg(mode));
    }
    bool DecoderOpenStream(std::int32_t port, const std::uint8_t *header, std::uint32_t headerSize,
                           std::uint32_t bufferSize) override
    {
        const QString arguments = QString("%1, %2, %3, %4").arg(port).arg(header ? "header" : "null");
        return m_calls.add("DecoderOpenStream", arguments.arg(headerSize).arg(bufferSize));
    }
    bool DecoderSetDecodeCallback(std::int32_t port, sdk::DecodeHandler handler, void *user) override
    {
        if (!handler && beforeRemoval)
            beforeRemoval();
        const std::lock_guard lock(m_handlerMutex);
        m_handler = handler;
        m_user = user;
        return m_calls.add("DecoderSetDecodeCallback",
                           QString("%1, %2").arg(port).arg(handler ? "handler" : "null"));
    }
    bool DecoderPlay(std::int32_t port, std::uintptr_t window) override
    {
        return m_calls.add("DecoderPlay", QString("%1, %2").arg(port).arg(window));
    }
    bool DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size) override
    {
        return m_calls.add("DecoderInputData",
                           QString("%1, ").arg(port) +
                               QString::fromLatin1(reinterpret_cast<const char *>(data), int(size)));
    }
    bool DecoderStop(std::int32_t port) override { return m_calls.add("DecoderStop", QString::number(port)); }
    bool DecoderCloseStream(std::int32_t port) override
    {
        return m_calls.add("DecoderCloseStream", QString::number(port));
    }
    bool DecoderFreePort(std::int32_t port) override
    {
        return m_calls.add("DecoderFreePort", QString::number(port));
    }
    bool DecoderGetStatus(std::int32_t, sdk::DecoderStatus &status) override
    {
        status = {.videoCodec = {"H.265"},
                  .audioCodec = {"AAC"},
                  .waitingBytes = 1200,
                  .damages = 2,
                  .skippedFrames = 3};
        return true;
    }
    bool DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width, std::int32_t height,
                          sdk::SavedImageType type, std::int32_t quality, const char *fileName,
                          sdk::FrameColour colour) override
    {
        const QString arguments = QString("%1, %2x%3, %4, %5, %6, %7").arg(frame ? frame[0] : -1);
        return m_calls.add("DecoderSaveFrame",
                           arguments.arg(width).arg(height).arg(int(type)).arg(quality).arg(fileName).arg(
                               int(colour))) &&
               frame;
    }

    /// Passes decoded data to the handler of the port, on the calling thread. Returns false if no handler is
    /// set.
    bool deliver(const std::vector<std::uint8_t> &bytes, const sdk::DecodedFrameInformation &information)
    {
        const std::lock_guard lock(m_handlerMutex);
        if (m_handler)
            m_handler(firstPort, bytes.data(), int(bytes.size()), &information, m_user);
        return m_handler != nullptr;
    }

    std::function<void()> beforeRemoval; ///< called when the handler is about to be removed

private:
    const std::shared_ptr<LibraryCalls> m_ownedCalls; // threads may still call the library after the test
    LibraryCalls &m_calls = *m_ownedCalls;
    std::mutex m_handlerMutex; ///< held during a call of the handler
    sdk::DecodeHandler m_handler = nullptr;
    void *m_user = nullptr;
};

/// A network library with one live stream: deliver() passes its data to the user of the stream.
class FakeNet : public QuietNetLibrary
{
public:
    static constexpr std::int64_t stream = 77; ///< the handle of the stream

    /// The object keeps `calls`.
    explicit FakeNet(std::shared_ptr<LibraryCalls> calls) : m_ownedCalls(std::move(calls)) {}
    /// `calls` must outlive the object.
    explicit FakeNet(LibraryCalls &calls) : m_calls(calls) {}

    std::int64_t NetStartRealStream(std::int64_t loginHandle, std::int32_t channel, std::uintptr_t window,
                                    sdk::LiveStreamKind kind) override
    {
        const std::lock_guard responses(mutexOfResponses);
        const QString arguments = QString("%1, %2, %3, %4").arg(loginHandle).arg(channel);
        return m_calls.add("NetStartRealStream", arguments.arg(window).arg(int(kind))) ? stream : 0;
    }
    bool NetSetRealDataCallback(std::int64_t streamHandle, sdk::RealDataHandler handler, void *user,
                                std::uint32_t flag) override
    {
        const std::lock_guard lock(m_handlerMutex);
        m_handler = handler;
        m_user = user;
        const QString arguments = QString("%1, %2, %3").arg(streamHandle);
        return m_calls.add("NetSetRealDataCallback", arguments.arg(handler ? "handler" : "null").arg(flag));
    }
    bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel, std::uint32_t reserved) override
    {
        return m_calls.add("NetStreamFollowUp",
                           QString("%1, %2, %3").arg(streamHandle).arg(channel).arg(reserved));
    }
    bool NetStopRealStream(std::int64_t streamHandle) override
    {
        return m_calls.add("NetStopRealStream", QString::number(streamHandle));
    }

    [[nodiscard]] std::uint32_t NetGetLastError() const override { return lastError; }

    std::atomic<std::uint32_t> lastError = 0; ///< the value of NetGetLastError()
    std::mutex mutexOfResponses; ///< while locked, the device does not respond to a request for a stream

    /// Passes bytes of the stream to its handler, on the calling thread. Returns false if no handler is set.
    bool deliver(const QByteArray &bytes)
    {
        const std::lock_guard lock(m_handlerMutex);
        if (m_handler)
            m_handler(stream, 0, reinterpret_cast<const std::uint8_t *>(bytes.data()),
                      std::uint32_t(bytes.size()), 0, m_user);
        return m_handler != nullptr;
    }

    /// Reports the end of the stream to its handler, on the calling thread. A handler must be set.
    void endStream(sdk::StreamEndReason reason)
    {
        const std::lock_guard lock(m_handlerMutex);
        m_handler(stream, std::uint32_t(sdk::RealDataType::End), nullptr, 0, std::int64_t(reason), m_user);
    }

private:
    const std::shared_ptr<LibraryCalls> m_ownedCalls; // threads may still call the library after the test
    LibraryCalls &m_calls = *m_ownedCalls;
    std::mutex m_handlerMutex;
    sdk::RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
};

/// A back end whose current session has the handle `loginHandle`; it has nothing else.
class SessionBackEnd : public CDeviceBase
{
    Q_OBJECT
public:
    SessionBackEnd() : CDeviceBase(nullptr) {}
    QVariant getConfigData(const QString &key, const QVariant &) override
    {
        return key == QLatin1String("loginHandle") ? QVariant(loginHandle) : QVariant();
    }

    qint64 loginHandle = 5'000'000'000; // more than 32 bits
};

/// A stepped clock that counts how often it is read.
class WatchedClock : public sdk::demo::SteppableClock
{
public:
    [[nodiscard]] std::int64_t now() const override
    {
        ++looks;
        return SteppableClock::now();
    }

    mutable std::atomic<int> looks = 0; ///< number of now() calls
};

/// The libraries of one test, with the record of their calls.
struct FakeLibraries
{
    std::shared_ptr<LibraryCalls> ownedCalls = std::make_shared<LibraryCalls>();
    LibraryCalls &calls = *ownedCalls;
    std::shared_ptr<FakeNet> net = std::make_shared<FakeNet>(ownedCalls);
    std::shared_ptr<FakeDecoder> decoder = std::make_shared<FakeDecoder>(ownedCalls);
    std::shared_ptr<WatchedClock> clock = std::make_shared<WatchedClock>();

    /// The libraries for the code under test, which shares them with this object.
    [[nodiscard]] sdk::SdkLibraries libraries() const
    {
        return {.net = net, .config = nullptr, .decoder = decoder, .p2pAgent = nullptr, .clock = clock};
    }
};

/// A decoded frame of one colour, given as Y, U and V, with half-size chroma planes (I420).
struct PlainFrame
{
    PlainFrame(int width, int height, std::uint8_t y, std::uint8_t u, std::uint8_t v,
               sdk::FrameColour colour = sdk::FrameColour::Bt601Limited)
        : information{.width = width,
                      .height = height,
                      .reserved = 0,
                      .type = sdk::DecodedFrameType::Video,
                      .rate = 25,
                      .colour = colour}
    {
        const std::size_t chroma = std::size_t(width + 1) / 2 * (std::size_t(height + 1) / 2);
        bytes.assign(std::size_t(width) * height, y);
        bytes.insert(bytes.end(), chroma, u);
        bytes.insert(bytes.end(), chroma, v);
    }

    std::vector<std::uint8_t> bytes; ///< plane Y, then U, then V, without gaps
    sdk::DecodedFrameInformation information;
};

/// Records the log messages of the category "configtools.media" during its lifetime; no message is printed
/// then. One object at a time.
class MessageLog
{
public:
    MessageLog()
    {
        texts().clear();
        m_previous = qInstallMessageHandler(&MessageLog::note);
    }
    ~MessageLog() { qInstallMessageHandler(m_previous); }
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    /// Returns the messages since the last take(), and removes them. Any thread.
    QStringList take()
    {
        const std::lock_guard lock(mutex());
        return std::exchange(texts(), {});
    }

private:
    static QStringList &texts()
    {
        static QStringList texts;
        return texts;
    }
    static std::mutex &mutex()
    {
        static std::mutex mutex;
        return mutex;
    }
    static void note(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        const std::lock_guard lock(mutex());
        if (qstrcmp(context.category, "configtools.media") == 0)
            texts().append(text);
    }

    QtMessageHandler m_previous = nullptr;
};
