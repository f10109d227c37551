// The encoder of one stream, as services show and change it.
#pragma once

#include "sdk/demo/internal/encodeabilities.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// A codec in the words of both media services; an empty text stands for one that a service does not have.
struct CodecName
{
    int compression;         ///< code of the device
    std::string_view media;  ///< "H264"
    std::string_view media2; ///< "H265"
};

[[nodiscard]] std::string_view mediaCodec(int compression);
[[nodiscard]] std::string_view media2Codec(int compression);
/// Nothing for a codec that the stream does not know.
[[nodiscard]] std::optional<int> compressionOfMedia(const sdk::demo::StreamAbilities &abilities,
                                                    const QString &name);
[[nodiscard]] std::optional<int> compressionOfMedia2(const sdk::demo::StreamAbilities &abilities,
                                                     const QString &name);

/// "Main", by the profile of the device; and back.
[[nodiscard]] std::string_view profileName(int profile);
[[nodiscard]] std::optional<int> profileNamed(const QString &name);

/// A format of sound in the words of both services.
[[nodiscard]] std::string_view mediaSound(int format);
[[nodiscard]] std::string_view media2Sound(int format);

struct EncodeSettings
{
    sdk::VideoFormatItem video;
    sdk::VideoProfileItem profile;
    sdk::AudioCompressionItem sound;
    sdk::AudioFormatItem soundFormat;
    int keyDistance = 0; ///< pictures from one that needs no earlier one to the next
};

/// Nothing when the device does not tell them.
[[nodiscard]] std::optional<EncodeSettings> encodeSettings(const sdk::demo::SceneDevice &device,
                                                           const MediaStream &stream);

/// Writes the items of the stream that differ. The device keeps all or none of them.
[[nodiscard]] sdk::NetError takeEncodeSettings(const ServiceCall &call, const MediaStream &stream,
                                               const EncodeSettings &settings);

/// The format numbers of sound that a stream of the device knows.
[[nodiscard]] QList<int> soundFormats(const sdk::demo::SceneDevice &device, const MediaStream &stream);

} // namespace site
