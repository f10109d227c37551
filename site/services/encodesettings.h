// The encoder settings of one stream for the media services.
#pragma once

#include "sdk/demo/device/encodeabilities.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// The names of a codec in both media services; empty if a service does not have the codec.
struct CodecName
{
    int compression;         ///< code of the device
    std::string_view media;  ///< "H264"
    std::string_view media2; ///< "H265"
};

/// The name of a codec in the service; empty for H.265 in the media service, which does not have it. "MPEG4"
/// and "MPV4-ES" for a code other than those of H.264, H.265 and JPEG.
[[nodiscard]] std::string_view mediaCodec(int compression);
[[nodiscard]] std::string_view media2Codec(int compression);
/// Nothing for a codec that the stream does not support.
[[nodiscard]] std::optional<int> compressionOfMedia(const sdk::demo::StreamAbilities &abilities,
                                                    const QString &name);
[[nodiscard]] std::optional<int> compressionOfMedia2(const sdk::demo::StreamAbilities &abilities,
                                                     const QString &name);

/// The name of a profile number: 1 "Baseline", 2 "Main", 3 "Extended", 4 "High"; "Main" for any other number.
[[nodiscard]] std::string_view profileName(int profile);
/// The number of such a name; nothing for any other name.
[[nodiscard]] std::optional<int> profileNamed(const QString &name);

/// The names of a sound format (AudioCompressionItem::format) in both services; "G711" and "PCMU" for a
/// format without another name.
[[nodiscard]] std::string_view mediaSound(int format);
[[nodiscard]] std::string_view media2Sound(int format);

struct EncodeSettings
{
    sdk::VideoFormatItem video;
    sdk::VideoProfileItem profile;
    sdk::AudioCompressionItem sound;
    sdk::AudioFormatItem soundFormat;
    int keyFrameInterval = 0; ///< frames from one key frame to the next; kept by the services, not an item
};

/// Nothing when at least one item is missing.
[[nodiscard]] std::optional<EncodeSettings> encodeSettings(const sdk::demo::SceneDevice &device,
                                                           const MediaStream &stream);

/// Writes the changed items of the stream. The device accepts all or none of them.
[[nodiscard]] sdk::NetError takeEncodeSettings(const ServiceCall &call, const MediaStream &stream,
                                               const EncodeSettings &settings);

/// The numbers of the sound formats that a stream of the device supports.
[[nodiscard]] QList<int> soundFormats(const sdk::demo::SceneDevice &device, const MediaStream &stream);

} // namespace site
