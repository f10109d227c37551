// What is known about the encoder of one channel, and how it is read and written.
#pragma once

#include "device/dh/session/configsession.h"
#include "device/registry/devicestep.h"
#include "sdk/encodeblocks.h"

#include <QList>

/// The items of a stream, in the order in which they are read and written.
enum class EncodePlace : std::uint8_t
{
    VideoFormat,
    VideoProfile,
    AudioCompression,
    AudioFormat,
};

inline constexpr int itemsOfStream = 4;

/// The items of one stream. One that was not read is zero but for its size and stream, and must not be
/// written: it would overwrite settings that are not known.
struct EncodeItems
{
    sdk::VideoFormatItem videoFormat{};
    sdk::VideoProfileItem videoProfile{};
    sdk::AudioCompressionItem audioCompression{};
    sdk::AudioFormatItem audioFormat{};
    std::array<bool, itemsOfStream> isRead{}; ///< by EncodePlace

    [[nodiscard]] bool knows(EncodePlace place) const { return isRead[static_cast<std::size_t>(place)]; }
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

    /// The places of the items that were not read, as writeEncodeItems() counts them.
    [[nodiscard]] QList<int> unreadItems() const;

    /// The places of the items that the device does not have, for this kind of main stream.
    [[nodiscard]] QList<int> missingItems(int streamType) const;

    /// Of the items that the device has, those that were not read.
    [[nodiscard]] QList<int> withheldItems(int streamType) const;
};

/// Results of reading that are no errors of the library.
inline constexpr int configurationUnreadable = 1;
inline constexpr int capabilitiesUnknown = 10;

struct EncodeReading
{
    int result = 0;         ///< 0, configurationUnreadable, capabilitiesUnknown, or an error of the library
    bool isFetched = false; ///< the device gave its configuration: the state is new, as far as it was read
    bool isAsked = false;   ///< the capabilities were asked for, whatever came of it
};

/// Whether a result of reading is an error of the library, and not one of the two above.
[[nodiscard]] constexpr bool isLibraryError(int result)
{
    return result != 0 && result != configurationUnreadable && result != capabilitiesUnknown;
}

/// Reads the configuration "Encode" and the capabilities that go with it. When the configuration is refused
/// the state stays as it was. Capabilities that the device does not answer for end with the library's error.
[[nodiscard]] EncodeReading readEncodeCapabilities(const ConfigSession &session, int channel,
                                                   EncodeState &state);

/// Asks for the capabilities again, for the settings of the state's record. Returns false, with the state
/// unchanged, when the device does not tell them.
bool refreshEncodeCapabilities(const ConfigSession &session, int channel, EncodeState &state);

/// Reads as readEncodeCapabilities() does, and then the items of the chosen main stream and of the sub
/// stream. An item that is refused counts as not read. When the device stops answering, the rest is not asked
/// for and the result is the library's error. When `control` ends the step, the rest counts as not read.
[[nodiscard]] EncodeReading readEncodeState(const ConfigSession &session, int channel, int streamType,
                                            EncodeState &state, const StepControl &control = {});

struct EncodeWriting
{
    QList<int> notTaken; ///< places of the items that were refused, not answered or not sent any more
    bool isDeviceAway = false;
};

/// Writes the items that were read: the places 0 to 3 are the main stream's video format, video profile,
/// audio compression and audio format, 4 to 7 the sub stream's. `unwanted` names places to leave out. A
/// refusal does not keep the others from being written; a device that does not answer gets no further item,
/// and none gets one when `control` ends the step.
[[nodiscard]] EncodeWriting writeEncodeItems(const ConfigSession &session, int channel,
                                             const EncodeState &state, const QList<int> &unwanted = {},
                                             const StepControl &control = {});
