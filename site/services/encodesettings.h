// The encoder settings of one stream for the media services.
#pragma once

#include "sdk/demo/device/encodeabilities.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// The names of a codec in both media services; a name is empty if the service does not have the codec.
struct CodecName
{
    int compression;         ///< the codec's number in VideoFormatItem
    std::string_view media;  ///< "H264"
    std::string_view media2; ///< "H265"
};

/// The name of a codec in the media service ("trt"). Empty for H.265, which that service does not have;
/// "MPEG4" for a number other than those of H.264, H.265 and JPEG.
[[nodiscard]] std::string_view mediaCodec(int compression);
/// The name of a codec in the second media service ("tr2"); "MPV4-ES" for a number other than those of H.264,
/// H.265 and JPEG.
[[nodiscard]] std::string_view media2Codec(int compression);
/// The number of the codec of that name in the service; nothing for an unknown name and for a codec that is
/// not in `abilities`, those of the stream.
[[nodiscard]] std::optional<int> compressionOfMedia(const sdk::demo::StreamAbilities &abilities,
                                                    const QString &name);
[[nodiscard]] std::optional<int> compressionOfMedia2(const sdk::demo::StreamAbilities &abilities,
                                                     const QString &name);

/// The name of a profile number: 1 "Baseline", 2 "Main", 3 "Extended", 4 "High"; "Main" for any other number.
[[nodiscard]] std::string_view profileName(int profile);
/// The number of such a name; nothing for any other name.
[[nodiscard]] std::optional<int> profileNamed(const QString &name);

/// The name of a sound format (AudioCompressionItem::format) in the media service ("AAC" or "G711") and in
/// the second one ("PCMA", "L16", "MP4A-LATM" or "PCMU"). "G711" and "PCMU" stand for every other format.
[[nodiscard]] std::string_view mediaSound(int format);
[[nodiscard]] std::string_view media2Sound(int format);

/// The items of one stream, and the setting that only the services have.
struct EncodeSettings
{
    sdk::VideoFormatItem video;
    sdk::VideoProfileItem profile;
    sdk::AudioCompressionItem sound;
    sdk::AudioFormatItem soundFormat;
    int keyFrameInterval = 0; ///< frames from one key frame to the next, in serviceState(); no item has it
};

/// The settings of a stream. Until the key frame interval is set, it has the number of frames of two seconds.
/// Nothing if an item is missing or withheld by Fault::WithholdsItem.
[[nodiscard]] std::optional<EncodeSettings> encodeSettings(const sdk::demo::SceneDevice &device,
                                                           const MediaStream &stream);

/// Writes the items that differ from those of the device, and the key frame interval. The device accepts all
/// or none of them. Returns None, the error of the first refused item, or ConnectTimeout if the device has
/// left the site (ServiceCall::change()).
[[nodiscard]] sdk::NetError takeEncodeSettings(const ServiceCall &call, const MediaStream &stream,
                                               const EncodeSettings &settings);

/// The sound formats (AudioCompressionItem::format, 1 to 5) that the stream supports, in ascending order.
[[nodiscard]] QList<int> soundFormats(const sdk::demo::SceneDevice &device, const MediaStream &stream);

} // namespace site
