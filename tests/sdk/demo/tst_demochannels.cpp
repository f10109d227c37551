// Items and capabilities of simulated channels: what is refused, and that nothing leaks from one to another.
#include "sdk/camerablocks.h"
#include "sdk/encodeblocks.h"
#include "tests/sdk/demo/testsite.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

constexpr std::uint32_t videoFormat = 1100;

VideoFormatItem itemOf(std::int32_t stream)
{
    VideoFormatItem item = {};
    item.size = sizeof(item);
    item.stream = stream;
    return item;
}

QByteArray bytesOf(const VideoFormatItem &item)
{
    return {reinterpret_cast<const char *>(&item), sizeof(item)};
}

} // namespace

class ChannelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void malformedReadsFail_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<int>("channel");
        QTest::addColumn<int>("stream");
        QTest::addColumn<quint32>("blockSize");
        QTest::addColumn<quint32>("error");
        const auto code = [](auto error) {
            return static_cast<quint32>(error);
        };
        const quint32 refused = code(NetError::NotSupported);
        const quint32 size = sizeof(VideoFormatItem);
        QTest::newRow("right") << videoFormat << 1 << 4 << size << 0u;
        QTest::newRow("unknown item") << 4711u << 1 << 1 << size << refused;
        QTest::newRow("no such channel") << videoFormat << 3 << 1 << size << refused;
        QTest::newRow("negative channel") << videoFormat << -1 << 1 << size << refused;
        QTest::newRow("nothing connected") << videoFormat << 2 << 1 << size << refused;
        QTest::newRow("no such stream") << videoFormat << 0 << 5 << size << refused;
        QTest::newRow("stream left out") << videoFormat << 0 << 0 << size << refused;
        QTest::newRow("buffer too small") << videoFormat << 0 << 1 << 8u << code(DemoError::WrongSize);
        QTest::newRow("no buffer") << videoFormat << 0 << 1 << 0u << code(DemoError::WrongSize);
        QTest::newRow("another item's size") << 1103u << 0 << 1 << size << code(DemoError::WrongSize);
    }

    void malformedReadsFail()
    {
        QFETCH(quint32, number);
        QFETCH(int, channel);
        QFETCH(int, stream);
        QFETCH(quint32, blockSize);
        QFETCH(quint32, error);
        SceneDevice device = camera(1, 0ms);
        device.channels.resize(3);
        device.channels[2].connected = false;
        const TestSite site({device});
        const Login login(*site.net, device.address, 8800);
        VideoFormatItem item = itemOf(stream);
        const bool isRead = site.net->NetGetItem(login.handle, number, channel,
                                                 blockSize > 0 ? &item : nullptr, blockSize, 5000ms);
        QCOMPARE(isRead, error == 0);
        if (!isRead)
            QCOMPARE(site.net->NetGetLastError(), error);
        QCOMPARE(item.width != 0, isRead);
        const bool isWritten = site.net->NetSetItem(login.handle, number, channel,
                                                    blockSize > 0 ? &item : nullptr, blockSize, 5000ms);
        QCOMPARE(isWritten, error == 0);
    }

    void aDeviceTakesWhatItCanDo_data()
    {
        QTest::addColumn<int>("place"); // of a word of the item
        QTest::addColumn<int>("word");
        QTest::addColumn<bool>("taken");
        QTest::newRow("compression that it has") << 3 << 8 << true;
        QTest::newRow("compression that it has not") << 3 << 0 << false;
        QTest::newRow("size that it has not") << 4 << 1921 << false;
        QTest::newRow("bit rate too low") << 7 << 31 << false;
        QTest::newRow("bit rate too high") << 7 << 16385 << false;
        QTest::newRow("quality") << 10 << 7 << false;
        QTest::newRow("flag") << 2 << 2 << false;
    }

    void aDeviceTakesWhatItCanDo()
    {
        QFETCH(int, place);
        QFETCH(int, word);
        QFETCH(bool, taken);
        const TestSite site({camera(1, 0ms)});
        const Login login(*site.net, u"192.168.1.1"_s, 8800);
        VideoFormatItem item = itemOf(1);
        QVERIFY(site.net->NetGetItem(login.handle, videoFormat, 0, &item, sizeof(item), 5000ms));
        const VideoFormatItem before = item;
        std::memcpy(reinterpret_cast<char *>(&item) + place * sizeof(word), &word, sizeof(word));
        QCOMPARE(site.net->NetSetItem(login.handle, videoFormat, 0, &item, sizeof(item), 5000ms), taken);
        VideoFormatItem after = itemOf(1);
        QVERIFY(site.net->NetGetItem(login.handle, videoFormat, 0, &after, sizeof(after), 5000ms));
        QCOMPARE(bytesOf(after), bytesOf(taken ? item : before));
        VideoFormatItem motion = itemOf(2); // another stream
        QVERIFY(site.net->NetGetItem(login.handle, videoFormat, 0, &motion, sizeof(motion), 5000ms));
        QCOMPARE(motion.compression, before.compression);
    }

    void malformedQueriesFail()
    {
        const TestSite site({camera(1, 0ms)});
        const Login login(*site.net, u"192.168.1.1"_s, 8800);
        auto capabilities = std::make_unique<EncodeCapabilities>();
        const auto query = [&](const EncodeCapabilityInput &input) {
            return site.net->NetQueryCapabilities(login.handle, CapabilityQuery::Encode, &input,
                                                  capabilities.get(), 5000ms);
        };
        const EncodeCapabilityInput good = {sizeof(good), 0, 0, 0, R"({"Encode":{}})"};
        QVERIFY(!query(good)); // the sizes in the output are not set
        capabilities->size = sizeof(EncodeCapabilities);
        for (EncodeCapabilityBlock &block : capabilities->blocks)
            block.size = sizeof(block);
        QVERIFY(query(good));
        QVERIFY(capabilities->blocks[3].maximumBitRate > 0);
        for (const EncodeCapabilityInput &bad : {EncodeCapabilityInput{8, 0, 0, 0, good.text},
                                                 EncodeCapabilityInput{sizeof(good), 0, 0, 0, nullptr},
                                                 EncodeCapabilityInput{sizeof(good), 0, 9, 0, good.text},
                                                 EncodeCapabilityInput{sizeof(good), 0, 0, 0, "{"}})
            QVERIFY(!query(bad));
        QVERIFY(!site.net->NetQueryCapabilities(login.handle, static_cast<CapabilityQuery>(99), nullptr,
                                                nullptr, 5000ms));
        QCOMPARE(netError(*site.net), NetError::NotSupported);
        CameraCapabilities cameras = {};
        const CameraCapabilityInput input = {sizeof(input), 0};
        QVERIFY(
            !site.net->NetQueryCapabilities(login.handle, CapabilityQuery::Camera, &input, &cameras, 5000ms));
        QCOMPARE(lastError(*site.net), DemoError::WrongSize);
    }

    void aResetForgetsSettings()
    {
        const TestSite site({camera(1, 0ms)});
        const Login login(*site.net, u"192.168.1.1"_s, 8800);
        StableItem item = {sizeof(item), 0, 1};
        QVERIFY(site.net->NetSetItem(login.handle, 1303, 0, &item, sizeof(item), 5000ms));
        QCOMPARE(site.site->devices().first().channelSettings.size(), 1);
        const ResetSystemInput input = {sizeof(input)};
        ResetSystemOutput output = {sizeof(output)};
        QVERIFY(site.net->NetResetSystem(login.handle, input, output, 5000ms));
        QVERIFY(site.site->devices().first().channelSettings.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ChannelsTest)
#include "tst_demochannels.moc"
