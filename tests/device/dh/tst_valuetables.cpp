// The tables between codes and texts, and what a capability block lets a page offer.
#include "device/dh/encodechoices.h"

#include <QTest>

#include <memory>

namespace {

sdk::EncodeCapabilityBlock filledBlock()
{
    sdk::EncodeCapabilityBlock block{};
    block.size = sizeof(block);
    return block;
}

} // namespace

class TestValueTables : public QObject
{
    Q_OBJECT
private:
    const ValueTables m_tables;

private Q_SLOTS:
    void tablesHaveTheirAnchors()
    {
        QCOMPARE(m_tables.VideoCompressionNames.size(), 10);
        QCOMPARE(m_tables.H264ProfileNames.at(1), "H.264  ");
        QCOMPARE(m_tables.ResolutionNames.size(), 36);
        QCOMPARE(m_tables.resolutionIndexFromSize(3744, 1408), 21);
        QCOMPARE(m_tables.resolutionIndexFromSize(800, 600), -1);
        int width = 1;
        int height = 1;
        QVERIFY(m_tables.resolutionSizeFromIndex(35, width, height));
        QVERIFY(!m_tables.resolutionSizeFromIndex(36, width, height));
        QVERIFY(!m_tables.resolutionSizeFromIndex(-1, width, height));
        QCOMPARE(width, 3840);
        QCOMPARE(m_tables.BitRateSteps[33], 22528);
        QCOMPARE(m_tables.BitRateSteps[34], 0);
        QVERIFY(std::is_sorted(m_tables.BitRateSteps.begin(), m_tables.BitRateSteps.begin() + 34));
        QCOMPARE(m_tables.AudioCompressionNames.size(), 23);
        QCOMPARE(m_tables.AudioSamplingFrequencies[0], 8000);
        QCOMPARE(m_tables.DayNightModeNames, QStringList({"白天", "夜晚", "普通"}));
        QCOMPARE(m_tables.BackLightModeNames.at(3), "强光抑制");
    }

    void audioFormatsGoBothWays()
    {
        for (int format = 1; format <= 13; ++format)
            QCOMPARE(ValueTables::audioNameToFormat(ValueTables::audioFormatToName(format)), format);
        QCOMPARE(ValueTables::audioFormatToName(5), "AAC");
        QCOMPARE(ValueTables::audioFormatToName(6), "G726");
        for (const int unknown : {0, 14, -1})
            QCOMPARE(ValueTables::audioFormatToName(unknown), "");
        QCOMPARE(ValueTables::audioNameToFormat("G723_53"), 6);
        QCOMPARE(ValueTables::audioNameToFormat("G723_63"), 6);
        QCOMPARE(ValueTables::audioNameToFormat(""), 0);
        QCOMPARE(ValueTables::audioNameToFormat("g711a"), 0);
    }

    void compressionsFollowMaskAndProfiles_data()
    {
        QTest::addColumn<quint32>("mask");
        QTest::addColumn<quint32>("count");
        QTest::addColumn<QList<int>>("profiles");
        QTest::addColumn<QStringList>("offered");
        const quint32 h264 = 1u << 7;
        QTest::newRow("no profiles") << (h264 | 1u) << 0u << QList<int>() << QStringList({"MPEG4", "H264"});
        QTest::newRow("profiles in the device's order") << (h264 | 1u << 8) << 3u << QList<int>({4, 0, 1})
                                                        << QStringList({"H.264 H", "H.264 B", "H.265"});
        QTest::newRow("unknown profiles") << h264 << 2u << QList<int>({7, -3}) << QStringList({"H264"});
        QTest::newRow("unknown bits") << 0xFFFFFC00u << 0u << QList<int>() << QStringList();
        QTest::newRow("count beyond its bound")
            << h264 << 0xFFFFFFFFu << QList<int>({1}) << QStringList({"H.264 B"});
    }

    void compressionsFollowMaskAndProfiles()
    {
        QFETCH(quint32, mask);
        QFETCH(quint32, count);
        QFETCH(QList<int>, profiles);
        sdk::EncodeCapabilityBlock block = filledBlock();
        block.compressionMask = mask;
        block.profileCount = count;
        std::copy(profiles.begin(), profiles.end(), block.profiles.begin());
        QTEST(EncodeChoices(m_tables, block).compressions(), "offered");
    }

    void resolutionsAreCommonOrByCompression()
    {
        sdk::EncodeCapabilityBlock block = filledBlock();
        block.compressionMask = 1u << 0 | 1u << 8;
        block.sizes.count = 4;
        block.sizes.sizes = {{{1920, 1080}, {2688, 1520}, {0, 720}, {800, 600}}};
        block.sizesByCompression[0].count = 1;
        block.sizesByCompression[0].sizes[0] = {1920, 1080};
        block.sizesByCompression[3].count = 1; // of a compression that it does not have
        block.sizesByCompression[3].sizes[0] = {352, 288};
        block.sizesByCompression[8].count = 0xFFFFFFFF;
        block.sizesByCompression[8].sizes[0] = {1920, 1080};
        const EncodeChoices choices(m_tables, block);
        QCOMPARE(choices.resolutions(), QStringList({"1080P", "2688*1520", "800*600"}));
        block.sizesDependOnCompression = 1;
        QCOMPARE(choices.resolutions(), QStringList({"1080P", "1080P"}));
        block.size = 0; // the device has not filled it
        QVERIFY(choices.resolutions().isEmpty() && choices.compressions().isEmpty());
        QVERIFY(choices.bitRates().isEmpty() && choices.audioCompressions().isEmpty());
    }

    void bitRatesRunBetweenTheBounds_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<int>("count");
        QTest::newRow("all") << 32 << 30000 << "32"
                             << "18432" << 32;
        QTest::newRow("between steps") << 50 << 100 << "64"
                                       << "96" << 3;
        QTest::newRow("one step") << 64 << 64 << "64"
                                  << "64" << 1;
        QTest::newRow("none between") << 50 << 60 << QString() << QString() << 0;
        QTest::newRow("minimum above every step") << 20000 << 128 << "32"
                                                  << "128" << 6;
        QTest::newRow("maximum below every step") << 10240 << 0 << "10240"
                                                  << "18432" << 5;
        QTest::newRow("negative") << -5 << -1 << "32"
                                  << "18432" << 32;
    }

    void bitRatesRunBetweenTheBounds()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        sdk::EncodeCapabilityBlock block = filledBlock();
        block.minimumBitRate = minimum;
        block.maximumBitRate = maximum;
        const QStringList offered = EncodeChoices(m_tables, block).bitRates();
        QTEST(static_cast<int>(offered.size()), "count");
        QTEST(offered.value(0), "first");
        QTEST(offered.value(offered.size() - 1), "last");
    }

    void audioOffersNamedCodes()
    {
        sdk::EncodeCapabilityBlock block = filledBlock();
        block.audioFormats = {22, 15, 0, 2, -1, 23, 1000};
        block.audioFormatCount = 1000;
        QCOMPARE(EncodeChoices(m_tables, block).audioCompressions(), QStringList({"MP3", "G711a"}));
    }

    void chosenTextsBecomeCodes()
    {
        QCOMPARE(compressionChoice(m_tables, "H.264 H")->profile, 4);
        QCOMPARE(compressionChoice(m_tables, "H.264  ")->code, 7);
        QCOMPARE(compressionChoice(m_tables, "H.265")->profile, 0);
        QVERIFY(!compressionChoice(m_tables, "H.264"));
        QCOMPARE(compressionName(m_tables, 7, 9), "H264");
        QCOMPARE(compressionName(m_tables, 10, 1), "");
        QCOMPARE(resolutionChoice(m_tables, "2688*1520")->width, 2688);
        QCOMPARE(resolutionChoice(m_tables, "SVGA")->height, 592);
        QCOMPARE(resolutionChoice(m_tables, "1408_1024")->width, 1408);
        for (const char *bad : {"", "800x600", "*600", "800*", "-1*5", "70000*5", "8*6*4"})
            QVERIFY2(!resolutionChoice(m_tables, QString::fromLatin1(bad)), bad);
    }
};

QTEST_GUILESS_MAIN(TestValueTables)
#include "tst_valuetables.moc"
