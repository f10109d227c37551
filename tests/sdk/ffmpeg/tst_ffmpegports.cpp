// Ports: their states, their buffers, and the calls of handlers.
#include "tests/sdk/ffmpeg/testport.h"

#include <atomic>
#include <future>

using namespace sdk;
using namespace sdk::ffmpeg;
using namespace std::chrono_literals;

namespace {

const VideoFormat mjpeg{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P};

const std::uint8_t *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const std::uint8_t *>(bytes.constData());
}

} // namespace

class FfmpegPortsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBufferAcceptsDataUntilItIsFull()
    {
        LiveStream stream(mjpeg);
        const QByteArray bytes = stream.head() + stream.frames(3);
        const auto size = static_cast<std::uint32_t>(bytes.size());
        FfmpegDecoderLibrary library;
        Receiver receiver;
        std::int32_t port = -1;
        DecoderStatus status{};
        QVERIFY(library.DecoderAllocPort(port));
        QVERIFY(library.DecoderOpenStream(port, nullptr, 0, size));
        QVERIFY(library.DecoderSetDecodeCallback(port, &Receiver::handle, &receiver));
        QVERIFY(library.DecoderInputData(port, bytesOf(bytes), size - 1));
        QVERIFY(!library.DecoderInputData(port, bytesOf(bytes), 2));
        QVERIFY(library.DecoderInputData(port, bytesOf(bytes) + size - 1, 1));
        QVERIFY(!library.DecoderInputData(port, bytesOf(bytes), 1));
        QVERIFY(library.DecoderGetStatus(port, status));
        QCOMPARE(status.waitingBytes, size);

        QVERIFY(library.DecoderPlay(port, 0)); // the refused call has no effect
        QTRY_COMPARE(receiver.frames().size(), 3);
        const auto waiting = [&] {
            library.DecoderGetStatus(port, status);
            return status.waitingBytes;
        };
        QTRY_COMPARE(waiting(), 0U);
        QCOMPARE(status.damages, 0U);
        QVERIFY(library.DecoderInputData(port, bytesOf(bytes), size));
        QVERIFY(library.DecoderFreePort(port));
    }

    void aRemovedHandlerIsNotCalled()
    {
        LiveStream stream(mjpeg);
        TestPort port;
        std::promise<void> entered;
        std::promise<void> leave;
        std::atomic<int> calls = 0;
        port.receiver.onDelivery = [&] {
            if (++calls == 1) {
                entered.set_value();
                leave.get_future().wait();
            }
        };
        QVERIFY(port.push(stream.head() + stream.frames(3)));
        entered.get_future().wait();
        std::future<bool> removal = std::async(std::launch::async, [&] {
            return port.library.DecoderSetDecodeCallback(port.number, nullptr, nullptr);
        });
        QCOMPARE(removal.wait_for(50ms), std::future_status::timeout); // the handler is still running
        QCOMPARE(port.receiver.frames().size(), 0);
        leave.set_value();
        QVERIFY(removal.get());
        // One more call may have started before the removal, but none afterwards.
        const int before = calls;
        QCOMPARE(port.receiver.frames().size(), before);
        QVERIFY(port.push(stream.frames(3)));
        QTRY_VERIFY(port.isIdle());
        QCOMPARE(calls, before);

        Receiver other;
        QVERIFY(port.library.DecoderSetDecodeCallback(port.number, &Receiver::handle, &other));
        QVERIFY(port.push(stream.frames(1)));
        QTRY_COMPARE(other.frames().size(), 1);
        QCOMPARE(calls, before);
        QVERIFY(port.library.DecoderStop(port.number));
    }

    void canBeStoppedDuringAStream()
    {
        LiveStream stream(VideoFormat{.encoder = "libx264", .width = 640, .height = 360});
        const QByteArray bytes = stream.head() + stream.frames(30);
        TestPort port;
        std::atomic<bool> mayRun = true;
        std::atomic<bool> ranAfterStop = false;
        port.receiver.onDelivery = [&] {
            if (!mayRun)
                ranAfterStop = true;
        };
        std::jthread pusher([&](const std::stop_token &stop) { // as a device does, during and after the stop
            while (!stop.stop_requested())
                port.push(bytes, 5000);
        });
        QTRY_VERIFY(port.receiver.frames().size() >= 2);
        QVERIFY(port.library.DecoderStop(port.number));
        mayRun = false;
        QVERIFY(port.library.DecoderCloseStream(port.number));
        QVERIFY(port.library.DecoderFreePort(port.number));
        pusher.request_stop();
        pusher.join();
        QVERIFY(!ranAfterStop);
    }

    void theLastTwoFramesRemainValid()
    {
        LiveStream small(mjpeg);
        LiveStream large(
            VideoFormat{.encoder = "mjpeg", .width = 128, .height = 96, .pixels = AV_PIX_FMT_YUVJ420P});
        TestPort port;
        std::atomic<int> gone = 0;
        port.receiver.onDelivery = [&] {
            const QList<Delivered> before = port.receiver.frames();
            for (qsizetype index = std::max<qsizetype>(0, before.size() - 2); index < before.size();
                 ++index) {
                const QByteArray &copy = before.at(index).bytes;
                if (std::memcmp(before.at(index).address, copy.constData(),
                                static_cast<std::size_t>(copy.size())) != 0)
                    ++gone;
            }
        };
        QVERIFY(port.push(small.head() + small.frames(5) + large.head() + large.frames(5)));
        QTRY_COMPARE(port.receiver.frames().size(), 10);
        QVERIFY(port.library.DecoderStop(port.number)); // and CloseStream: they end with the port
        QVERIFY(port.library.DecoderCloseStream(port.number));
        port.receiver.onDelivery();
        QCOMPARE(gone, 0);
    }
};

QTEST_GUILESS_MAIN(FfmpegPortsTest)

#include "tst_ffmpegports.moc"
