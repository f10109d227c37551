#include "device/dh/encode/valuetables.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class TableTexts
{
    Q_DECLARE_TR_FUNCTIONS(ValueTables)
public:
    static QStringList streamTypes() { return {tr("普通"), tr("动检"), tr("报警")}; }
    static QStringList dayNightModes() { return {tr("白天"), tr("夜晚"), tr("普通")}; }
    static QStringList backLightModes() { return {tr("关闭"), tr("背光补偿"), tr("宽动态"), tr("强光抑制")}; }
};

struct Resolution
{
    const char *name;
    sdk::FrameSize size; ///< as devices report it, even where it looks odd
};

constexpr std::array resolutions = {
    Resolution{"D1", {704, 576}},          Resolution{"HD1", {352, 576}},
    Resolution{"BCIF", {704, 288}},        Resolution{"CIF", {352, 288}},
    Resolution{"QCIF", {176, 144}},        Resolution{"VGA", {640, 480}},
    Resolution{"QVGA", {320, 240}},        Resolution{"SVCD", {480, 480}},
    Resolution{"QQVGA", {160, 128}},       Resolution{"SVGA", {800, 592}},
    Resolution{"XVGA", {1024, 768}},       Resolution{"WXGA", {1280, 800}},
    Resolution{"SXGA", {1280, 1024}},      Resolution{"WSXGA", {1600, 1024}},
    Resolution{"UXGA", {1600, 1200}},      Resolution{"WUXGA", {1920, 1200}},
    Resolution{"LFT", {240, 192}},         Resolution{"720P", {1280, 720}},
    Resolution{"1080P", {1920, 1080}},     Resolution{"1_3M", {1280, 960}},
    Resolution{"2M", {1872, 1408}},        Resolution{"5M", {3744, 1408}},
    Resolution{"3M", {2048, 1536}},        Resolution{"5_0M", {2432, 2050}},
    Resolution{"1_2M", {1216, 1024}},      Resolution{"1408_1024", {1408, 1024}},
    Resolution{"8M", {3296, 2472}},        Resolution{"2560_1920", {2560, 1920}},
    Resolution{"960H", {960, 576}},        Resolution{"960_720", {960, 720}},
    Resolution{"NHD", {640, 360}},         Resolution{"QNHD", {320, 180}},
    Resolution{"QQNHD", {160, 90}},        Resolution{"4000*3000", {4000, 3000}},
    Resolution{"4096*2160", {4096, 2160}}, Resolution{"3840*2160", {3840, 2160}},
};
static_assert(resolutions.size() == 36);

QStringList resolutionNames()
{
    QStringList names;
    for (const Resolution &resolution : resolutions)
        names.append(QString::fromLatin1(resolution.name));
    return names;
}

std::vector<sdk::FrameSize> resolutionSizes()
{
    std::vector<sdk::FrameSize> sizes;
    sizes.reserve(resolutions.size());
    for (const Resolution &resolution : resolutions)
        sizes.push_back(resolution.size);
    return sizes;
}

/// By format value; 0 is no format.
constexpr std::array configurationAudioFormats = {
    "",     "G711a", "PCM",   "G711u",        "AMR", "AAC", "G726",
    "G729", "ADPCM", "MPEG2", "MPEG2_Layer2", "OGG", "MP3", "G7221",
};
constexpr int formatG726 = 6;

} // namespace

ValueTables::ValueTables()
    : StreamTypeNames(TableTexts::streamTypes()),
      VideoCompressionNames({QStringLiteral("MPEG4"), QStringLiteral("MS_MPEG4"), QStringLiteral("MPEG2"),
                             QStringLiteral("MPEG1"), QStringLiteral("H263"), QStringLiteral("MJPG"),
                             QStringLiteral("FCC_MPEG4"), QStringLiteral("H264"), QStringLiteral("H.265"),
                             QStringLiteral("SVAC")}),
      // The second name ends in two spaces instead of a letter: pages and settings compare it in this form.
      H264ProfileNames({QStringLiteral("H.264 B"), QStringLiteral("H.264  "), QStringLiteral("H.264 E"),
                        QStringLiteral("H.264 H")}),
      ResolutionNames(resolutionNames()),
      ResolutionSizes(resolutionSizes()), BitRateSteps{32,    48,    64,    80,    96,    128,  160,
                                                       192,   224,   256,   320,   384,   448,  512,
                                                       640,   768,   896,   1024,  1280,  1536, 1792,
                                                       2048,  3072,  4096,  6144,  7168,  8192, 10240,
                                                       12288, 14336, 16384, 18432, 20480, 22528},
      AudioCompressionNames({QString(),
                             QStringLiteral("PCM"),
                             QStringLiteral("G711a"),
                             QStringLiteral("AMR"),
                             QStringLiteral("G711u"),
                             QStringLiteral("G726"),
                             QStringLiteral("G723_53"),
                             QStringLiteral("G723_63"),
                             QStringLiteral("AAC"),
                             QStringLiteral("OGG"),
                             QStringLiteral("G729"),
                             QStringLiteral("MPEG2"),
                             QStringLiteral("MPEG2_Layer2"),
                             QStringLiteral("G7221"),
                             QString(),
                             QString(),
                             QString(),
                             QString(),
                             QString(),
                             QString(),
                             QString(),
                             QStringLiteral("ADPCM"),
                             QStringLiteral("MP3")}),
      AudioSamplingFrequencies{8000}, DayNightModeNames(TableTexts::dayNightModes()),
      BackLightModeNames(TableTexts::backLightModes())
{
}

QString ValueTables::audioFormatToName(int format)
{
    const bool isKnown = format > 0 && format < static_cast<int>(configurationAudioFormats.size());
    return isKnown ? QString::fromLatin1(configurationAudioFormats[static_cast<std::size_t>(format)])
                   : QString();
}

int ValueTables::audioNameToFormat(const QString &name)
{
    if (name == QLatin1String("G723_63") || name == QLatin1String("G723_53"))
        return formatG726;
    const auto found = std::find_if(configurationAudioFormats.begin() + 1, configurationAudioFormats.end(),
                                    [&name](const char *known) { return name == QLatin1String(known); });
    return found == configurationAudioFormats.end()
               ? 0
               : static_cast<int>(found - configurationAudioFormats.begin());
}

int ValueTables::resolutionIndexFromSize(int width, int height) const
{
    const auto found =
        std::find_if(ResolutionSizes.begin(), ResolutionSizes.end(), [width, height](sdk::FrameSize size) {
            return size.width == width && size.height == height;
        });
    return found == ResolutionSizes.end() ? -1 : static_cast<int>(found - ResolutionSizes.begin());
}

bool ValueTables::resolutionSizeFromIndex(int index, int &width, int &height) const
{
    if (index < 0 || index >= static_cast<int>(ResolutionSizes.size()))
        return false;
    const sdk::FrameSize size = ResolutionSizes[static_cast<std::size_t>(index)];
    width = size.width;
    height = size.height;
    return true;
}
