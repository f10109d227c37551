#include "site/services/mediavideooptions.h"

#include "site/services/encodesettings.h"
#include "site/services/mediaparts.h"

#include <set>

using namespace sdk::demo;

namespace site {

namespace {

constexpr int aacFormat = 5;

/// The abilities of the stream; out of bounds for a device with that fault.
StreamAbilities reportedAbilities(const SceneDevice &device, const MediaStream &stream)
{
    StreamAbilities abilities = streamAbilities(device, stream.encodeKind());
    if (device.hasFault(Fault::OddCapabilities)) {
        constexpr int odd = 2000000000;
        abilities.sizes.prepend({0, 0});
        abilities.minimumBitRate = odd;
        abilities.maximumBitRate = -1;
        abilities.maximumFrameRate = -1;
        abilities.samplingFrequencies.prepend(0);
    }
    return abilities;
}

/// The options of one codec, up to the range of rates.
void writeCodec(XmlElement options, const char *name, const StreamAbilities &abilities, int compression)
{
    XmlElement codec = options.add(name);
    const std::string_view kind = name;
    for (const sdk::FrameSize size : abilities.sizesOf(compression)) {
        XmlElement resolution = codec.add("tt:ResolutionsAvailable");
        resolution.add("tt:Width", size.width);
        resolution.add("tt:Height", size.height);
    }
    if (kind != "tt:JPEG")
        writeRange(codec, "tt:GovLengthRange", 1, longestKeyFrameInterval);
    writeRange(codec, "tt:FrameRateRange", 1, abilities.maximumFrameRate);
    writeRange(codec, "tt:EncodingIntervalRange", 1, 1);
    if (kind == "tt:MPEG4")
        codec.add("tt:Mpeg4ProfilesSupported", "SP");
    if (kind == "tt:H264") {
        for (const int profile : abilities.profiles)
            codec.add("tt:H264ProfilesSupported", profileName(profile));
    }
    if (options.node().name() == std::string_view("tt:Extension"))
        writeRange(codec, "tt:BitrateRange", abilities.minimumBitRate, abilities.maximumBitRate);
}

void writeCodecs(XmlElement options, const StreamAbilities &abilities)
{
    constexpr int motionJpeg = 5;
    constexpr int mpeg4 = 0;
    if (abilities.compressions.contains(motionJpeg))
        writeCodec(options, "tt:JPEG", abilities, motionJpeg);
    if (abilities.compressions.contains(mpeg4))
        writeCodec(options, "tt:MPEG4", abilities, mpeg4);
    if (abilities.compressions.contains(sdk::compressionH264))
        writeCodec(options, "tt:H264", abilities, sdk::compressionH264);
}

QString rates(int maximum)
{
    QStringList list;
    for (int rate = maximum; rate >= 1; --rate)
        list.append(QString::number(rate));
    return list.join(u' ');
}

} // namespace

void writeMediaVideoOptions(XmlElement options, const SceneDevice &device, const MediaStream &stream)
{
    const StreamAbilities abilities = reportedAbilities(device, stream);
    writeRange(options, "tt:QualityRange", 1, bestQuality);
    writeCodecs(options, abilities);
    writeCodecs(options.add("tt:Extension"), abilities);
}

void writeMediaAudioOptions(XmlElement options, const SceneDevice &device, const MediaStream &stream)
{
    const StreamAbilities abilities = reportedAbilities(device, stream);
    std::set<std::string_view> written;
    for (const int format : soundFormats(device, stream)) {
        if (!written.insert(mediaSound(format)).second)
            continue;
        XmlElement option = options.add("tt:Options");
        option.add("tt:Encoding", mediaSound(format));
        XmlElement bitRates = option.add("tt:BitrateList");
        bitRates.add("tt:Items", format == aacFormat ? 32 : 64);
        XmlElement sampleRates = option.add("tt:SampleRateList");
        for (const int frequency : abilities.samplingFrequencies)
            sampleRates.add("tt:Items", frequency / 1000);
    }
}

void writeMedia2VideoOptions(XmlElement response, const SceneDevice &device, const MediaStream &stream)
{
    const StreamAbilities abilities = reportedAbilities(device, stream);
    for (const int compression : abilities.compressions) {
        XmlElement options = response.add("tr2:Options");
        QStringList profiles;
        for (const int profile : abilities.profiles)
            profiles.append(QString::fromStdString(std::string(profileName(profile))));
        options.attribute("GovLengthRange", QStringLiteral("1 %1").arg(longestKeyFrameInterval));
        options.attribute("FrameRatesSupported", rates(abilities.maximumFrameRate));
        if (compression == sdk::compressionH264)
            options.attribute("ProfilesSupported", profiles.join(u' '));
        options.attribute("ConstantBitRateSupported", true);
        options.add("tt:Encoding", media2Codec(compression));
        writeRange(options, "tt:QualityRange", 1, bestQuality);
        for (const sdk::FrameSize size : abilities.sizesOf(compression)) {
            XmlElement resolution = options.add("tt:ResolutionsAvailable");
            resolution.add("tt:Width", size.width);
            resolution.add("tt:Height", size.height);
        }
        writeRange(options, "tt:BitrateRange", abilities.minimumBitRate, abilities.maximumBitRate);
    }
}

void writeMedia2AudioOptions(XmlElement response, const SceneDevice &device, const MediaStream &stream)
{
    const StreamAbilities abilities = reportedAbilities(device, stream);
    for (const int format : soundFormats(device, stream)) {
        XmlElement options = response.add("tr2:Options");
        options.add("tt:Encoding", media2Sound(format));
        options.add("tt:BitrateList").add("tt:Items", format == aacFormat ? 32 : 64);
        XmlElement sampleRates = options.add("tt:SampleRateList");
        for (const int frequency : abilities.samplingFrequencies)
            sampleRates.add("tt:Items", frequency / 1000);
    }
}

} // namespace site
