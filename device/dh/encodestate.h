// What is known about the encoder of one channel, and how it is read and written.
#pragma once

#include "device/dh/configsession.h"
#include "sdk/encodeblocks.h"

#include <QList>

/// The items of one stream.
struct EncodeItems
{
    sdk::VideoFormatItem videoFormat{};
    sdk::VideoProfileItem videoProfile{};
    sdk::AudioCompressionItem audioCompression{};
    sdk::AudioFormatItem audioFormat{};
};

struct EncodeState
{
    sdk::EncodeRecord record{};
    sdk::EncodeCapabilities capabilities{};
    EncodeItems main; ///< of the chosen kind of main stream
    EncodeItems sub;

    /// Blocks of the main stream of a kind (0 to 2), and of the sub stream.
    [[nodiscard]] const sdk::EncodeCapabilityBlock &mainBlock(int streamType) const
    {
        return capabilities.blocks[static_cast<std::size_t>(streamType)];
    }
    [[nodiscard]] const sdk::EncodeCapabilityBlock &subBlock() const
    {
        return capabilities.blocks[static_cast<std::size_t>(sdk::StreamKind::Sub)];
    }
};

/// Results of reading that are no errors of the library.
inline constexpr int configurationUnreadable = 1;
inline constexpr int capabilitiesUnknown = 10;

struct EncodeReading
{
    int result = 0;         ///< 0, configurationUnreadable, capabilitiesUnknown, or an error of the library
    bool isFetched = false; ///< the device gave its configuration: the state is new, as far as it was read
    bool isAsked = false;   ///< the capabilities were asked for, whatever came of it
    QList<int> unreadItems = {}; ///< places of the items that were refused, as writeEncodeItems() counts them
};

/// Reads the configuration "Encode" and the capabilities that go with it. When the configuration is refused
/// the state stays as it was.
[[nodiscard]] EncodeReading readEncodeCapabilities(const ConfigSession &session, int channel,
                                                   EncodeState &state);

/// Asks for the capabilities again, for the settings of the state's record. Returns false, with the state
/// unchanged, when the device does not tell them.
bool refreshEncodeCapabilities(const ConfigSession &session, int channel, EncodeState &state);

/// Reads as readEncodeCapabilities() does, and then the items of the chosen main stream and of the sub
/// stream. An item that is refused is zero but for its size and stream.
[[nodiscard]] EncodeReading readEncodeState(const ConfigSession &session, int channel, int streamType,
                                            EncodeState &state);

/// Writes the eight items but for those in the places `left`, whatever comes of each. Returns the places of
/// those that were refused: 0 to 3 the main stream's video format, video profile, audio compression and audio
/// format, 4 to 7 the sub stream's.
[[nodiscard]] QList<int> writeEncodeItems(const ConfigSession &session, int channel, const EncodeItems &main,
                                          const EncodeItems &sub, const QList<int> &left = {});
