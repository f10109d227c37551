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
