// The tables of codes and names, and the choices derived from a capability block.
#include "device/dh/encode/encodechoices.h"
#include "tests/datatable.h"

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
    void namesStandAtTheirCodes()
    {
        QCOMPARE(m_tables.StreamTypeNames.join('|'), "普通|动检|报警");
        QCOMPARE(m_tables.VideoCompressionNames.join('|'),
                 "MPEG4|MS_MPEG4|MPEG2|MPEG1|H263|MJPG|FCC_MPEG4|H264|H.265|SVAC");
        QCOMPARE(m_tables.H264ProfileNames.join('|'), "H.264 B|H.264  |H.264 E|H.264 H");
        QCOMPARE(m_tables.AudioCompressionNames.join('|'),
                 "|PCM|G711a|AMR|G711u|G726|G723_53|G723_63|AAC|OGG|G729|MPEG2|MPEG2_Layer2|G7221||||||||"
                 "ADPCM|MP3");
        QCOMPARE(m_tables.DayNightModeNames.join('|'), "白天|夜晚|普通");
        QCOMPARE(m_tables.BackLightModeNames.join('|'), "关闭|背光补偿|宽动态|强光抑制");
        QCOMPARE(m_tables.AudioSamplingFrequencies[0] + m_tables.AudioSamplingFrequencies[1], 8000);
        QStringList steps;
        for (const int step : m_tables.BitRateSteps)
            steps.append(QString::number(step));
        QCOMPARE(steps.mid(0, 35).join(' '),
                 "32 48 64 80 96 128 160 192 224 256 320 384 448 512 640 768 896 1024 1280 1536 1792 2048 "
                 "3072 4096 6144 7168 8192 10240 12288 14336 16384 18432 20480 22528 0");
    }

    void resolutionsHaveTheirSizes()
    {
        QStringList sizes;
        int width = 0;
        int height = 0;
        for (int index = 0; m_tables.resolutionSizeFromIndex(index, width, height); ++index) {
            sizes.append(
                QStringLiteral("%1 %2x%3").arg(m_tables.ResolutionNames.at(index)).arg(width).arg(height));
            QCOMPARE(m_tables.resolutionIndexFromSize(width, height), index);
        }
        QCOMPARE(
            sizes.join(", "),
            "D1 704x576, HD1 352x576, BCIF 704x288, CIF 352x288, QCIF 176x144, VGA 640x480, QVGA 320x240, "
            "SVCD 480x480, QQVGA 160x128, SVGA 800x592, XVGA 1024x768, WXGA 1280x800, SXGA 1280x1024, "
            "WSXGA 1600x1024, UXGA 1600x1200, WUXGA 1920x1200, LFT 240x192, 720P 1280x720, "
            "1080P 1920x1080, 1_3M 1280x960, 2M 1872x1408, 5M 3744x1408, 3M 2048x1536, 5_0M 2432x2050, "
            "1_2M 1216x1024, 1408_1024 1408x1024, 8M 3296x2472, 2560_1920 2560x1920, 960H 960x576, "
            "960_720 960x720, NHD 640x360, QNHD 320x180, QQNHD 160x90, 4000*3000 4000x3000, "
            "4096*2160 4096x2160, 3840*2160 3840x2160");
        QVERIFY(!m_tables.resolutionSizeFromIndex(-1, width, height));
        QCOMPARE(m_tables.resolutionIndexFromSize(800, 600), -1);
    }

    void audioFormatsHaveTheirNames()
    {
        const QStringList names = {"",     "G711a", "PCM",   "G711u",        "AMR", "AAC", "G726",
                                   "G729", "ADPCM", "MPEG2", "MPEG2_Layer2", "OGG", "MP3", "G7221"};
        for (int format = -1; format <= names.size(); ++format)
            QCOMPARE(ValueTables::audioFormatToName(format), names.value(format));
        for (int format = 0; format < names.size(); ++format)
            QCOMPARE(ValueTables::audioNameToFormat(names.at(format)), format);
        for (const char *name : {"G723_53", "G723_63"})
            QCOMPARE(ValueTables::audioNameToFormat(name), 6);
        QCOMPARE(ValueTables::audioNameToFormat("g711a"), 0);
    }

    void compressionsDependOnMaskAndProfiles_data()
    {
        const auto row =
            dataTable<quint32, quint32, QList<int>, QStringList>({"mask", "count", "profiles", "offered"});
        const quint32 h264 = 1u << 7;
        row("no profiles", (h264 | 1u), 0u, QList<int>(), QStringList({"MPEG4", "H264"}));
        row("profiles in the device's order", (h264 | 1u << 8), 3u, QList<int>({4, 0, 1}),
            QStringList({"H.264 H", "H.264 B", "H.265"}));
        row("unknown profiles", h264, 2u, QList<int>({7, -3}), QStringList());
        row("count beyond its bound", h264, 0xFFFFFFFFu, QList<int>({1}), QStringList({"H.264 B"}));
    }

    void compressionsDependOnMaskAndProfiles()
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

    void resolutionsMayDependOnTheCompression()
    {
        sdk::EncodeCapabilityBlock block = filledBlock();
        block.compressionMask = 1u << 0 | 1u << 8;
        block.sizes.count = 4;
        block.sizes.sizes = {{{1920, 1080}, {2688, 1520}, {0, 720}, {800, 600}}};
        block.sizesByCompression[0].count = 1;
        block.sizesByCompression[0].sizes[0] = {1920, 1080};
        block.sizesByCompression[3].count = 1; // a compression that is not in the mask
        block.sizesByCompression[3].sizes[0] = {352, 288};
        block.sizesByCompression[8].count = 0xFFFFFFFF;
        block.sizesByCompression[8].sizes[0] = {1920, 1080};
        const EncodeChoices choices(m_tables, block);
        QCOMPARE(choices.resolutions(), QStringList({"1080P", "2688*1520", "800*600"}));
        block.sizesDependOnCompression = 1;
        QCOMPARE(choices.resolutions(), QStringList({"1080P", "1080P"}));
        block.size = 0; // the device has not filled the block
        QVERIFY(choices.resolutions().isEmpty() && choices.compressions().isEmpty());
        QVERIFY(choices.bitRates().isEmpty() && choices.audioCompressions().isEmpty());
    }

    void bitRatesAreBetweenTheBounds_data()
    {
        const auto row =
            dataTable<int, int, QString, QString, int>({"minimum", "maximum", "first", "last", "count"});
        row("all", 32, 30000, "32", "18432", 32);
        row("between steps", 50, 100, "64", "96", 3);
        row("none in the range", 50, 60, QString(), QString(), 0);
        row("minimum above every step", 20000, 128, "32", "128", 6);
        row("maximum below every step", 10240, 0, "10240", "18432", 5);
    }

    void bitRatesAreBetweenTheBounds()
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

    void selectedNamesHaveCodes()
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
