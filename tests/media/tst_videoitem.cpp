#include "media/dhdecoder.h"
#include "media/videoitem.h"
#include "media/videostream.h"
#include "tests/datatable.h"
#include "tests/media/fakelibraries.h"

#include <QRegularExpression>
#include <QSignalSpy>

#include <thread>

using namespace std::chrono_literals;

namespace {

const QStringList decoderStarted = {"DecoderAllocPort()", "DecoderSetStreamMode(3, 0)",
                                    "DecoderOpenStream(3, null, 0, 8388608)",
                                    "DecoderSetDecodeCallback(3, handler)", "DecoderPlay(3, 0)"};
const QStringList decoderStopped = {"DecoderSetDecodeCallback(3, null)", "DecoderStop(3)",
                                    "DecoderCloseStream(3)", "DecoderFreePort(3)"};
const QString streamAsked = "NetStartRealStream(5000000000, 2, 0, 0)";
const QString handlerSet = "NetSetRealDataCallback(77, handler, 1)";
const QStringList streamStopped = {"NetSetRealDataCallback(77, null, 1)", "NetStopRealStream(77)"};

/// Runs `call` on another thread, as a library does, and waits for its end.
template<typename Call>
void onAnotherThread(const Call &call)
{
    std::thread(call).join();
}

} // namespace

/// Calls of a live view to the libraries, and its signals. tst_videoframe checks the drawing.
class TestVideoItem : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<FakeLibraries> m_fake;
    std::unique_ptr<VideoItem> m_item;

    QList<PlainFrame> m_delivered; ///< the decoder's own buffers

    void deliver(const PlainFrame &frame)
    {
        m_delivered.append(frame);
        onAnotherThread([this] {
            m_fake->decoder->deliver(m_delivered.constLast().bytes, m_delivered.constLast().information);
        });
    }

private Q_SLOTS:
    void initTestCase()
    {
        CDeviceFactory::registerBackEnd("dh", [] { return std::make_shared<SessionBackEnd>(); });
    }

    void init()
    {
        m_fake = std::make_unique<FakeLibraries>();
        VideoItem::registerLibraries(m_fake->libraries());
        m_item = std::make_unique<VideoItem>();
        m_item->setChannelId(2);
    }

    void cleanup()
    {
        m_item.reset();
        VideoItem::registerLibraries({});
        m_fake.reset();
        m_delivered.clear();
    }

    void cleanupTestCase() { CDeviceFactory::deleteInstance(); }

    void startsAndStopsStepByStep_data()
    {
        // started: calls after those that start the decoder
        const auto row = dataTable<QString, QString, QStringList, QStringList, QStringList>(
            {"failing", "text", "started", "stopped", "log"});
        row("all well", "", "", QStringList{streamAsked, handlerSet, "NetStreamFollowUp(77, 2, 0)"},
            streamStopped + decoderStopped, QStringList{"m_lRealHandle 77", "lRealHandle 77"});
        row("stream refused", "NetStartRealStream", "播放失败", (QStringList{streamAsked} + decoderStopped),
            QStringList(), QStringList{"m_lRealHandle 0", "open stream fail"});
        // stop() closes the open stream.
        row("handler refused", "NetSetRealDataCallback", "播放失败",
            (QStringList{streamAsked, handlerSet} + decoderStopped), streamStopped,
            QStringList{"m_lRealHandle 77", "lRealHandle 77", "open failed"});
        row("follow-up refused", "NetStreamFollowUp", "",
            QStringList{streamAsked, handlerSet, "NetStreamFollowUp(77, 2, 0)"},
            streamStopped + decoderStopped, QStringList{"m_lRealHandle 77", "lRealHandle 77"});
    }

    void startsAndStopsStepByStep()
    {
        QFETCH(QString, failing);
        QFETCH(QString, text);
        QFETCH(QStringList, started);
        QFETCH(QStringList, log);
        m_fake->calls.failOnly(failing);
        MessageLog messages;
        QSignalSpy handleChanged(m_item.get(), &VideoItem::isLoginHandleChanged);
        QCOMPARE(m_item->start(), text.isEmpty());
        QCOMPARE(m_item->text(), text);
        QCOMPARE(m_item->loginHandle(), 5'000'000'000);
        QCOMPARE(handleChanged.size(), 1);
        QCOMPARE(m_fake->calls.take(), decoderStarted + started);
        QStringList lines = messages.take();
        lines.removeIf([](const QString &line) { return line.startsWith("CDHDecoder::"); });
        QCOMPARE(lines, (QStringList{"VideoItem::start()", "m_loginHandle 5000000000"} + log));

        m_item->stop();
        QTEST(m_fake->calls.take(), "stopped");
        QVERIFY(messages.take().contains("VideoItem::stop()"));
        m_item->stop();
        QCOMPARE(m_fake->calls.take(), QStringList());

        m_fake->calls.failOnly({});
        QVERIFY(m_item->start()); // a successful start clears the error
        QCOMPARE(m_item->text(), QString());
    }

    void startsInTheBackground()
    {
        QSignalSpy ended(m_item.get(), &VideoItem::startEnded);
        {
            const std::lock_guard noResponse(m_fake->net->mutexOfResponses);
            m_item->startInBackground(); // returns immediately
            QCOMPARE(m_fake->calls.take(), decoderStarted);
            QVERIFY(!m_item->isStreaming());
        }
        QVERIFY(ended.wait());
        QCOMPARE(ended.takeFirst(), (QVariantList{true, false}));
        QVERIFY(m_item->isStreaming());
        QCOMPARE(m_fake->calls.take(), (QStringList{streamAsked, handlerSet, "NetStreamFollowUp(77, 2, 0)"}));
        m_item->stop();
        m_fake->calls.take();
    }

    void reportsWhyThereIsNoStream_data()
    {
        const auto row = dataTable<sdk::NetError, QString, bool>({"error", "text", "mayTryOther"});
        row("unknown", sdk::NetError::None, "播放失败", true);
        row("offline", sdk::NetError::ConnectTimeout, "播放失败：网络异常", false);
        row("no such stream", sdk::NetError::NotSupported, "播放失败：设备不支持此操作", true);
        row("missing right", sdk::NetError::Refused, "播放失败：设备拒绝了此操作", false);
        row("password changed", sdk::NetError::SessionEnded, "播放失败：登录已失效，请重新登录", false);
        row("too many streams", sdk::NetError::DeviceBusy, "播放失败：设备忙，请稍后重试", false);
    }

    void reportsWhyThereIsNoStream()
    {
        QFETCH(const sdk::NetError, error);
        QFETCH(const bool, mayTryOther);
        QSignalSpy ended(m_item.get(), &VideoItem::startEnded);
        m_fake->calls.failOnly("NetStartRealStream");
        m_fake->net->lastError = static_cast<std::uint32_t>(error);
        m_item->startInBackground();
        QVERIFY(ended.wait());
        QCOMPARE(ended.takeFirst(), (QVariantList{false, mayTryOther}));
        QTEST(m_item->text(), "text");
    }

    /// The stream that is opened afterwards is closed.
    void aStopBeforeTheResponseClosesTheStream_data()
    {
        const auto row = dataTable<bool>({"isStopped"});
        row("stopped", true);
        row("destroyed", false);
    }

    void aStopBeforeTheResponseClosesTheStream()
    {
        QFETCH(bool, isStopped);
        QSignalSpy ended(m_item.get(), &VideoItem::startEnded);
        {
            const std::lock_guard noResponse(m_fake->net->mutexOfResponses);
            m_item->startInBackground();
            if (isStopped)
                m_item->stop();
            else
                m_item.reset();
        }
        QStringList calls;
        QTRY_VERIFY(
            (calls += m_fake->calls.take()).contains(QString("NetStopRealStream(%1)").arg(FakeNet::stream)));
        QVERIFY(!calls.contains(handlerSet));
        QVERIFY(ended.isEmpty());
    }

    void withoutALibraryAStartFails()
    {
        sdk::SdkLibraries onlyNet;
        onlyNet.net = m_fake->net;
        sdk::SdkLibraries onlyDecoder;
        onlyDecoder.decoder = m_fake->decoder;
        for (const sdk::SdkLibraries &libraries : {onlyNet, onlyDecoder}) {
            VideoItem::registerLibraries(libraries);
            VideoItem item;
            QVERIFY(!item.start());
            QCOMPARE(item.text(), QString("播放失败"));
        }
    }

    void theSubStreamAndAnotherStart()
    {
        m_item->setStreamKind(VideoItem::Sub);
        QVERIFY(m_item->start());
        QVERIFY(m_fake->calls.take().contains("NetStartRealStream(5000000000, 2, 0, 1)"));
        QVERIFY(m_item->start()); // ends the one that runs
        QCOMPARE(m_fake->calls.take().mid(0, 6), streamStopped + decoderStopped);
        m_item.reset();
        QCOMPARE(m_fake->calls.take(), streamStopped + decoderStopped);
    }

    /// QML decides about a retry.
    void reportsWhyAStreamHasEnded()
    {
        QVERIFY(m_item->start());
        QSignalSpy failures(m_item.get(), &VideoItem::videoErrorSig);
        onAnotherThread([this] { m_fake->net->endStream(sdk::StreamEndReason::EndedByDevice); });
        QTRY_COMPARE(m_item->text(), QString("设备结束了视频流"));
        QVERIFY(m_item->isStreaming());
        QCOMPARE(failures.size(), 0);
        m_item->stop();
        QCOMPARE(m_item->text(), QString("设备结束了视频流"));

        QVERIFY(m_item->start()); // a successful start clears the reason
        onAnotherThread([this] { m_fake->net->endStream(sdk::StreamEndReason::Refused); });
        m_item->stop(); // before the item has received the event
        QCoreApplication::processEvents();
        QCOMPARE(m_item->text(), QString());
    }

    void reportsSizeAndRateOfFrames()
    {
        QSignalSpy info(m_item.get(), &VideoItem::videoInfoChangedSig);
        QSignalSpy frames(m_item.get(), &VideoItem::sigVideoDataChanged);
        QCOMPARE(m_item->frameSize(), QSize(-1, -1));
        QVERIFY(m_item->start());
        deliver({6, 4, 50, 128, 128});
        deliver({6, 4, 50, 128, 128});
        QTRY_COMPARE(m_item->frameSize(), QSize(6, 4));
        QVERIFY(m_item->hasFrame());
        QCOMPARE(frames.size(), 2);
        QCOMPARE(info.size(), 1);
        deliver({8, 4, 50, 128, 128}); // in mid-stream
        QTRY_COMPARE(m_item->frameSize(), QSize(8, 4));
        const QVariantMap figures = m_item->figures();
        QCOMPARE(figures.value("width").toInt(), 8);
        QCOMPARE(figures.value("codec").toString(), QString("H.265"));
        QCOMPARE(figures.value("damages").toInt(), 2);
        m_item->stop();
        QCOMPARE(m_item->frameSize(), QSize(0, 0));
        QVERIFY(!m_item->hasFrame());
        QCOMPARE(info.size(), 3);
        QCoreApplication::processEvents(); // events posted by the decoder
        QCOMPARE(m_item->frameSize(), QSize(0, 0));
    }

    /// No buffer of the decoder is used after stop() has returned, including that of a frame that arrived
    /// meanwhile.
    void aStoppedStreamLeavesNothing()
    {
        QVERIFY(m_item->start());
        deliver({6, 4, 50, 128, 128});
        m_fake->decoder->beforeRemoval = [this] {
            deliver({6, 4, 60, 128, 128});
        };
        m_item->stop();
        m_item->currentFrame().read([](const VideoFrame &frame) {
            QVERIFY(!frame.data);
            QVERIFY(!frame.isComplete());
        });
        QVERIFY(!m_fake->decoder->deliver({1}, {}));
        QVERIFY(!m_fake->net->deliver("late"));
    }

    void ignoresInvalidSizes_data()
    {
        const auto row = dataTable<int, int, int>({"width", "height", "bytes"});
        row("a byte short", 5, 3, 15 + 2 * 6 - 1);
        row("negative", -4, -2, 12);
        row("overflowing", 65536, 65536, 12);
    }

    void ignoresInvalidSizes()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, bytes);
        QVERIFY(m_item->start());
        PlainFrame frame(2, 2, 0, 0, 0);
        frame.bytes.resize(bytes);
        frame.information.width = width;
        frame.information.height = height;
        deliver(frame);
        m_item->currentFrame().read([](const VideoFrame &current) { QVERIFY(!current.isComplete()); });
    }

    /// As snapshots do it: on a thread without Qt's event dispatcher, which timers would require.
    void savesAFrameOnAnyThread()
    {
        QTest::failOnWarning(QRegularExpression("Timers"));
        QStringList results;
        onAnotherThread([&] {
            VideoStream stream(m_fake->libraries());
            results.append(stream.start({.loginHandle = 5'000'000'000, .channel = 2}) ? "started" : "failed");
            results.append(stream.saveFrame("x.jpg", 50) ? "saved" : "none yet");
            PlainFrame incomplete(6, 4, 50, 128, 128);
            incomplete.bytes.pop_back();
            deliver(incomplete);
            results.append(stream.saveFrame("x.jpg", 50) ? "saved" : "none yet");
            deliver({6, 4, 50, 128, 128, sdk::FrameColour::Bt709Full});
            m_fake->calls.take();
            results.append(stream.saveFrame("x.jpg", 50) ? "saved" : "none yet");
            results.append(m_fake->calls.take());
        });
        QCOMPARE(results, (QStringList{"started", "none yet", "none yet", "saved",
                                       "DecoderSaveFrame(50, 6x4, 3, 50, x.jpg, 3)"}));
        QCOMPARE(m_fake->calls.take(), streamStopped + decoderStopped);
    }
};

QTEST_MAIN(TestVideoItem)
#include "tst_videoitem.moc"
