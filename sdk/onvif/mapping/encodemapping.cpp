#include "sdk/onvif/mapping/encodemapping.h"

#include "sdk/configtext/configtext.h"
#include "sdk/onvif/mapping/encodingnames.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace sdk::onvif {

namespace {

using Deadline = OnvifSession::Deadline;

constexpr int hertzOfKilohertz = 1000;
constexpr int highestSampleRate = 1000; // kHz
constexpr int bestQuality = 6;
constexpr int usualMinimumBitRate = 32;
constexpr int usualMaximumBitRate = 16384;
constexpr int usualMaximumFrameRate = 30;

/// A stream of a channel, by its profile.
struct Stream
{
    MediaProfile profile;
    std::vector<VideoEncodingOptions> options; ///< empty until they are read
};

/// The profile token of a type of stream; empty if the standard or the device does not have the type.
std::string profileToken(const OnvifSession &session, int channel, StreamKind kind)
{
    if (channel < 0 || static_cast<std::size_t>(channel) >= session.channels().size())
        return {};
    const MediaChannel &found = session.channels()[static_cast<std::size_t>(channel)];
    switch (kind) {
    case StreamKind::MainNormal:
        return found.mainProfile;
    case StreamKind::Sub:
        return found.subProfile;
    default:
        return {};
    }
}

/// The purpose of reading a stream.
enum class Purpose
{
    Show,
    Change, ///< it is written back with changes
};

ServiceResult<Stream> readStream(OnvifSession &session, int channel, StreamKind kind, Purpose purpose,
                                 Deadline deadline)
{
    const std::string token = profileToken(session, channel, kind);
    if (token.empty())
        return {.error = NetError::NotSupported};
    auto profiles =
        purpose == Purpose::Change ? session.profiles(deadline) : session.recentProfiles(deadline);
    if (!profiles.isOk())
        return {.error = profiles.error, .reason = profiles.reason};
    const auto found = std::find_if(profiles.value.begin(), profiles.value.end(),
                                    [&token](const MediaProfile &profile) { return profile.token == token; });
    if (found == profiles.value.end() || !found->video)
        return {.error = NetError::NotSupported};
    return {.value = {.profile = *found, .options = {}}};
}

NetError readOptions(OnvifSession &session, Stream &stream, Deadline deadline)
{
    std::optional<MediaService> media = session.media(deadline);
    if (!media)
        return NetError::NotSupported;
    auto options = media->videoOptions(stream.profile.video->token, stream.profile.token);
    stream.options = std::move(options.value);
    return options.error;
}

const VideoEncodingOptions *optionsOf(const Stream &stream, std::string_view encoding)
{
    const auto found = std::find_if(stream.options.begin(), stream.options.end(),
                                    [encoding](const auto &options) { return options.encoding == encoding; });
    return found == stream.options.end() ? nullptr : &*found;
}

/// The step, 1 to 6, of a quality in the device's range; qualityOfStep() is the reverse.
int qualityStep(double quality, const VideoEncodingOptions *options)
{
    if (!options || options->maximumQuality <= options->minimumQuality)
        return std::clamp(static_cast<int>(std::lround(quality)), 1, bestQuality);
    const double share =
        (quality - options->minimumQuality) / (options->maximumQuality - options->minimumQuality);
    return std::clamp(static_cast<int>(std::lround(share * (bestQuality - 1))) + 1, 1, bestQuality);
}

double qualityOfStep(int step, const VideoEncodingOptions *options)
{
    if (!options || options->maximumQuality <= options->minimumQuality)
        return step;
    const double share = static_cast<double>(step - 1) / (bestQuality - 1);
    return std::round(options->minimumQuality + share * (options->maximumQuality - options->minimumQuality));
}

StreamKind kindOf(std::int32_t number)
{
    return static_cast<StreamKind>(number - 1);
}

bool isStreamNumber(std::int32_t number)
{
    return number >= 1 && number <= static_cast<std::int32_t>(streamKindCount);
}

void fill(VideoFormatItem &item, const Stream &stream)
{
    const VideoEncoder &video = *stream.profile.video;
    item.videoEnable = 1;
    item.compression = compressionOf(video.encoding);
    item.width = video.width;
    item.height = video.height;
    item.bitRateControl = video.constantBitRate ? 0 : 1;
    item.bitRate = video.bitRate;
    item.frameRate = static_cast<float>(video.frameRate);
    item.quality = qualityStep(video.quality, optionsOf(stream, video.encoding));
}

void fill(AudioCompressionItem &item, const Stream &stream)
{
    item.audioEnable = stream.profile.audio ? 1 : 0;
    item.format = stream.profile.audio ? audioFormatOf(stream.profile.audio->encoding) : 0;
}

/// Copies the values of an item to the encoder's settings. False if the standard cannot express them.
bool take(const VideoFormatItem &item, const Stream &stream, VideoEncoder &video)
{
    const std::string encoding = encodingOf(item.compression);
    if (item.videoEnable != 1 || encoding.empty() || item.width <= 0 || item.height <= 0 ||
        !std::isfinite(item.frameRate) || item.frameRate <= 0)
        return false;
    if (encoding != video.encoding)
        video.profile.clear(); // of the codec before
    video.encoding = encoding;
    video.width = item.width;
    video.height = item.height;
    video.bitRate = item.bitRate;
    video.frameRate = item.frameRate;
    video.constantBitRate = item.bitRateControl == 0;
    const VideoEncodingOptions *options = optionsOf(stream, encoding);
    // The quality is unchanged while its step is: the device's value is more precise than the step.
    if (item.quality != qualityStep(video.quality, options))
        video.quality = qualityOfStep(item.quality, options);
    return true;
}

NetError writeVideo(OnvifSession &session, const VideoEncoder &video, Deadline deadline)
{
    std::optional<MediaService> media = session.media(deadline);
    if (!media)
        return NetError::NotSupported;
    const NetError error = media->setVideoEncoder(video).error;
    session.clearProfiles();
    return error;
}

/// Writes the settings of a stream's audio with another format or sample rate. The bit rate is the device's
/// first option for that format, since the options depend on the format.
NetError writeAudio(OnvifSession &session, const Stream &stream, int format, int sampleRate,
                    Deadline deadline)
{
    std::optional<MediaService> media = session.media(deadline);
    if (!media || !stream.profile.audio)
        return NetError::NotSupported;
    AudioEncoder audio = *stream.profile.audio;
    const bool changesFormat = format != 0 && format != audioFormatOf(audio.encoding);
    if (changesFormat || (sampleRate > 0 && sampleRate != audio.sampleRate)) {
        const auto options = media->audioOptions(audio.token, stream.profile.token);
        const int requested = changesFormat ? format : audioFormatOf(audio.encoding);
        const auto found =
            std::find_if(options.value.begin(), options.value.end(), [requested](const auto &candidate) {
                return audioFormatOf(candidate.encoding) == requested;
            });
        if (found == options.value.end())
            return options.isOk() ? NetError::InvalidValue : options.error;
        audio.encoding = found->encoding;
        const auto offers = [](const std::vector<int> &values, int value) {
            return std::find(values.begin(), values.end(), value) != values.end();
        };
        if (!found->bitRates.empty() && !offers(found->bitRates, audio.bitRate))
            audio.bitRate = found->bitRates.front();
        if (sampleRate > 0)
            audio.sampleRate = sampleRate;
        else if (!found->sampleRates.empty() && !offers(found->sampleRates, audio.sampleRate))
            audio.sampleRate = found->sampleRates.front();
    }
    const NetError error = media->setAudioEncoder(audio).error;
    session.clearProfiles();
    return error;
}

constexpr std::uint32_t bit(EncodeValue value)
{
    return 1U << static_cast<std::uint32_t>(value);
}

void fillBlock(EncodeCapabilityBlock &block, const Stream &stream)
{
    block.missingValues = bit(EncodeValue::StreamSwitch) | bit(EncodeValue::AudioSwitch);
    const bool offersConstant =
        stream.profile.video->constantBitRate ||
        std::any_of(stream.options.begin(), stream.options.end(),
                    [](const VideoEncodingOptions &options) { return options.offersConstantBitRate; });
    if (!offersConstant)
        block.missingValues |= bit(EncodeValue::BitRateControl);
    block.sizesDependOnCompression = 1;
    block.minimumBitRate = usualMinimumBitRate;
    block.maximumBitRate = 0;
    for (const VideoEncodingOptions &options : stream.options) {
        const int code = compressionOf(options.encoding);
        if (code < 0)
            continue;
        block.compressionMask |= 1U << static_cast<unsigned>(code);
        FrameSizeList &list = block.sizesByCompression[static_cast<std::size_t>(code)];
        for (const auto &[width, height] : options.sizes) {
            if (list.count < maximumFrameSizes && width <= 65535 && height <= 65535)
                list.sizes[list.count++] = {.width = static_cast<std::uint16_t>(width),
                                            .height = static_cast<std::uint16_t>(height)};
        }
        if (options.minimumBitRate > 0)
            block.minimumBitRate = options.minimumBitRate;
        block.maximumBitRate = std::max(block.maximumBitRate, options.maximumBitRate);
        block.maximumFrameRate = std::max(block.maximumFrameRate,
                                          static_cast<std::int32_t>(std::lround(options.maximumFrameRate)));
        for (const std::string &profile : options.profiles) {
            const int number = options.encoding == "H264" ? profileNumber(profile) : 0;
            if (number > 0 && block.profileCount < block.profiles.size())
                block.profiles[block.profileCount++] = number;
        }
    }
    if (block.maximumBitRate == 0)
        block.maximumBitRate = usualMaximumBitRate;
    if (block.maximumFrameRate == 0)
        block.maximumFrameRate = usualMaximumFrameRate;
}

void fillAudio(EncodeCapabilityBlock &block, MediaService &media, const MediaProfile &profile)
{
    if (!profile.audio) {
        block.missingValues |= bit(EncodeValue::Audio);
        return;
    }
    for (const AudioEncodingOptions &options :
         media.audioOptions(profile.audio->token, profile.token).value) {
        const int code = audioCapabilityOf(options.encoding);
        if (code <= 0)
            continue;
        const auto used = block.audioFormats.begin() + block.audioFormatCount;
        if (block.audioFormatCount < block.audioFormats.size() &&
            std::find(block.audioFormats.begin(), used, code) == used)
            block.audioFormats[block.audioFormatCount++] = code;
        for (const int rate : options.sampleRates) {
            if (rate > 0 && rate <= highestSampleRate && block.audioRateCount < block.audioRates.size())
                block.audioRates[block.audioRateCount++] = {.format = code,
                                                            .frequency = rate * hertzOfKilohertz};
        }
    }
}

EncodeStreamRecord recordOf(const Stream &stream)
{
    const VideoEncoder &video = *stream.profile.video;
    EncodeStreamRecord record{};
    record.videoEnabled = 1;
    record.compression = compressionOf(video.encoding);
    record.profile = video.encoding == "H264" ? profileNumber(video.profile) : 0;
    record.width = video.width;
    record.height = video.height;
    record.bitRateControl = video.constantBitRate ? 0 : 1;
    record.bitRate = video.bitRate;
    record.frameRate = static_cast<std::int32_t>(std::lround(video.frameRate));
    record.quality = qualityStep(video.quality, optionsOf(stream, video.encoding));
    if (stream.profile.audio) {
        record.audioEnabled = 1;
        record.audioFormat = audioFormatOf(stream.profile.audio->encoding);
        record.samplingFrequency = stream.profile.audio->sampleRate * hertzOfKilohertz;
    }
    return record;
}

constexpr std::array servedKinds = {StreamKind::MainNormal, StreamKind::Sub};

/// Copies `block` of `size` bytes into `typedBlock`, and reads the stream that it names.
template<typename Block>
ServiceResult<Stream> readStreamOf(Block &typedBlock, const void *block, std::uint32_t size,
                                   OnvifSession &session, int channel, Purpose purpose, Deadline deadline)
{
    if (!block || size != sizeof(typedBlock))
        return {.error = NetError::InvalidValue};
    std::memcpy(&typedBlock, block, sizeof(typedBlock));
    if (typedBlock.size != static_cast<std::int32_t>(sizeof(typedBlock)) ||
        !isStreamNumber(typedBlock.stream))
        return {.error = NetError::InvalidValue};
    return readStream(session, channel, kindOf(typedBlock.stream), purpose, deadline);
}

} // namespace

std::string encodeConfiguration(OnvifSession &session, int channel, Deadline deadline, NetError &error)
{
    EncodeRecord record{};
    record.size = sizeof(record);
    session.clearProfiles(); // a page starts with this request, and shows the present settings
    for (const StreamKind kind : servedKinds) {
        ServiceResult<Stream> stream = readStream(session, channel, kind, Purpose::Show, deadline);
        if (!stream.isOk()) {
            if (kind == StreamKind::MainNormal || stream.error != NetError::NotSupported) {
                error = stream.error;
                return {};
            }
            continue; // a source with one profile
        }
        (void)readOptions(session, stream.value, deadline); // for the quality alone
        record.streams[static_cast<std::size_t>(kind)] = recordOf(stream.value);
    }
    const std::optional<QByteArray> text = packConfigText("Encode", &record, sizeof(record));
    error = text ? NetError::None : NetError::ProtocolMismatch;
    return text ? text->toStdString() : std::string();
}

NetError setEncodeConfiguration(OnvifSession &session, int channel, std::string_view text, Deadline deadline)
{
    EncodeRecord record{};
    if (!unpackConfigText("Encode", text, &record, sizeof(record)))
        return NetError::InvalidValue;
    for (const StreamKind kind : servedKinds) {
        const EncodeStreamRecord &requested = record.streams[static_cast<std::size_t>(kind)];
        if (requested.videoEnabled == 0)
            continue;
        ServiceResult<Stream> stream = readStream(session, channel, kind, Purpose::Change, deadline);
        if (!stream.isOk())
            return stream.error;
        if (const NetError error = readOptions(session, stream.value, deadline); error != NetError::None)
            return error;
        VideoFormatItem item{};
        fill(item, stream.value);
        item.compression = requested.compression;
        item.width = requested.width;
        item.height = requested.height;
        item.bitRateControl = requested.bitRateControl;
        item.bitRate = requested.bitRate;
        item.frameRate = static_cast<float>(requested.frameRate);
        item.quality = requested.quality;
        VideoEncoder video = *stream.value.profile.video;
        if (!take(item, stream.value, video))
            return NetError::InvalidValue;
        if (requested.profile != 0 && video.encoding == "H264")
            video.profile = profileName(requested.profile);
        NetError error = writeVideo(session, video, deadline);
        if (error == NetError::None && requested.audioEnabled != 0 && stream.value.profile.audio)
            error = writeAudio(session, stream.value, requested.audioFormat,
                               requested.samplingFrequency / hertzOfKilohertz, deadline);
        if (error != NetError::None)
            return error;
    }
    return NetError::None;
}

NetError encodeItem(OnvifSession &session, std::uint32_t item, int channel, void *block, std::uint32_t size,
                    Deadline deadline)
{
    const auto read = [&](auto typedBlock, auto fillIn) {
        ServiceResult<Stream> stream =
            readStreamOf(typedBlock, block, size, session, channel, Purpose::Show, deadline);
        if (!stream.isOk())
            return stream.error;
        const NetError error = fillIn(typedBlock, stream.value);
        if (error == NetError::None)
            std::memcpy(block, &typedBlock, sizeof(typedBlock));
        return error;
    };
    switch (static_cast<EncodeItem>(item)) {
    case EncodeItem::VideoFormat:
        return read(VideoFormatItem{}, [&](VideoFormatItem &typedBlock, Stream &stream) {
            const NetError error = readOptions(session, stream, deadline);
            fill(typedBlock, stream);
            return error;
        });
    case EncodeItem::VideoProfile:
        return read(VideoProfileItem{}, [](VideoProfileItem &typedBlock, const Stream &stream) {
            typedBlock.profile = profileNumber(stream.profile.video->profile);
            return NetError::None;
        });
    case EncodeItem::AudioCompression:
        return read(AudioCompressionItem{}, [](AudioCompressionItem &typedBlock, const Stream &stream) {
            fill(typedBlock, stream);
            return NetError::None;
        });
    case EncodeItem::AudioFormat:
        return read(AudioFormatItem{}, [](AudioFormatItem &typedBlock, const Stream &stream) {
            if (!stream.profile.audio)
                return NetError::NotSupported;
            typedBlock.samplingFrequency = stream.profile.audio->sampleRate * hertzOfKilohertz;
            return NetError::None;
        });
    }
    return NetError::NotSupported;
}

NetError setEncodeItem(OnvifSession &session, std::uint32_t item, int channel, const void *block,
                       std::uint32_t size, Deadline deadline)
{
    const auto write = [&](auto typedBlock, auto apply) {
        ServiceResult<Stream> stream =
            readStreamOf(typedBlock, block, size, session, channel, Purpose::Change, deadline);
        return stream.isOk() ? apply(typedBlock, stream.value) : stream.error;
    };
    switch (static_cast<EncodeItem>(item)) {
    case EncodeItem::VideoFormat:
        return write(VideoFormatItem{}, [&](const VideoFormatItem &typedBlock, Stream &stream) {
            if (const NetError error = readOptions(session, stream, deadline); error != NetError::None)
                return error;
            VideoEncoder video = *stream.profile.video;
            return take(typedBlock, stream, video) ? writeVideo(session, video, deadline)
                                                   : NetError::InvalidValue;
        });
    case EncodeItem::VideoProfile:
        return write(VideoProfileItem{}, [&](const VideoProfileItem &typedBlock, const Stream &stream) {
            VideoEncoder video = *stream.profile.video;
            const std::string profile = profileName(typedBlock.profile);
            if (video.encoding != "H264" || profile.empty() || profile == video.profile)
                return NetError::None; // other codecs have no such profile
            video.profile = profile;
            return writeVideo(session, video, deadline);
        });
    case EncodeItem::AudioCompression:
        return write(AudioCompressionItem{}, [&](const AudioCompressionItem &typedBlock,
                                                 const Stream &stream) {
            const bool isEnabled = stream.profile.audio.has_value();
            if ((typedBlock.audioEnable != 0) != isEnabled)
                return NetError::NotSupported; // sound belongs to a profile or does not
            return isEnabled ? writeAudio(session, stream, typedBlock.format, 0, deadline) : NetError::None;
        });
    case EncodeItem::AudioFormat:
        return write(AudioFormatItem{}, [&](const AudioFormatItem &typedBlock, const Stream &stream) {
            return writeAudio(session, stream, 0, typedBlock.samplingFrequency / hertzOfKilohertz, deadline);
        });
    }
    return NetError::NotSupported;
}

NetError encodeCapabilities(OnvifSession &session, const EncodeCapabilityInput &input,
                            EncodeCapabilities &output, Deadline deadline)
{
    if (input.size != sizeof(input) || output.size != sizeof(output))
        return NetError::InvalidValue;
    EncodeCapabilities filled{};
    filled.size = sizeof(filled);
    for (EncodeCapabilityBlock &block : filled.blocks) {
        block.size = sizeof(block);
        block.missingValues = bit(EncodeValue::Stream);
    }
    for (const StreamKind kind : servedKinds) {
        ServiceResult<Stream> stream = readStream(session, input.channel, kind, Purpose::Show, deadline);
        NetError error = stream.error;
        if (error == NetError::None)
            error = readOptions(session, stream.value, deadline);
        if (error == NetError::NotSupported && kind == StreamKind::Sub)
            continue;
        if (error != NetError::None)
            return error;
        EncodeCapabilityBlock &block = filled.blocks[static_cast<std::size_t>(kind)];
        fillBlock(block, stream.value);
        if (std::optional<MediaService> media = session.media(deadline))
            fillAudio(block, *media, stream.value.profile);
    }
    output = filled;
    return NetError::None;
}

} // namespace sdk::onvif
