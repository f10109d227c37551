// The encoder state of one channel, and functions that read and write it.
#pragma once

#include "device/dh/session/configsession.h"
#include "device/registry/devicestep.h"
#include "device/registry/encodekeys.h"
#include "sdk/encodeblocks.h"

#include <QList>

/// The items of one stream. An item is a group of settings that a device reads and writes together. An item
/// that was not read must not be written, since that would overwrite unknown settings.
struct EncodeItems
{
    sdk::VideoFormatItem videoFormat{};
    sdk::VideoProfileItem videoProfile{};
    sdk::AudioCompressionItem audioCompression{};
    sdk::AudioFormatItem audioFormat{};
    std::array<bool, itemsOfStream> isRead{}; ///< by EncodeItemIndex

    /// Whether this item was read.
    [[nodiscard]] bool knows(EncodeItemIndex index) const { return isRead[static_cast<std::size_t>(index)]; }
};

/// Encoder state of one channel, as read from the device and changed by the page.
struct EncodeState
{
    sdk::EncodeRecord record{}; ///< configuration "Encode", with which the capabilities are requested
    sdk::EncodeCapabilities capabilities{};
    EncodeItems main; ///< of the selected kind of main stream
    EncodeItems sub;

    /// Capabilities of a kind of main stream (0 to 2), and of the sub stream.
    [[nodiscard]] const sdk::EncodeCapabilityBlock &mainBlock(int streamType) const
    {
        return capabilities.blocks[static_cast<std::size_t>(streamType)];
    }
    [[nodiscard]] const sdk::EncodeCapabilityBlock &subBlock() const
    {
        return capabilities.blocks[static_cast<std::size_t>(sdk::StreamKind::Sub)];
    }

    /// Indexes (0 to 7, see writeEncodeItems()) of the items that were not read, also of those that the
    /// device does not have.
    [[nodiscard]] QList<int> unreadItems() const;

    /// Indexes of the items that the device does not have, for this kind of main stream.
    [[nodiscard]] QList<int> missingItems(int streamType) const;

    /// Indexes of the items that the device has but that were not read.
    [[nodiscard]] QList<int> withheldItems(int streamType) const;
};

/// Results of a read in addition to 0 and the errors of the device library.
inline constexpr int configurationUnreadable = 1; ///< the text of the configuration is invalid
inline constexpr int capabilitiesUnknown = 10;    ///< the device refused the capabilities

/// Result of a read.
struct EncodeReading
{
    int result = 0; ///< 0, configurationUnreadable, capabilitiesUnknown, or an error of the library
    /// The device returned its configuration. `record` has its values, or is empty after
    /// configurationUnreadable.
    bool isFetched = false;
    bool isQueried = false; ///< the capabilities were requested, with or without success
};

/// Whether a result is an error of the device library.
[[nodiscard]] constexpr bool isLibraryError(int result)
{
    return result != 0 && result != configurationUnreadable && result != capabilitiesUnknown;
}

/// Reads the configuration "Encode" into `state.record` and the capabilities for it; the items are
/// unchanged. If the configuration cannot be fetched, the result is the library's error and the state is
/// unchanged. The capabilities are requested also after configurationUnreadable. If they cannot be read,
/// they are empty; the result is capabilitiesUnknown, or the library's error if the device does not respond.
/// If the record cannot be packed as text, the capabilities are not requested (`isQueried` is false) and stay
/// unchanged, and the result may be 0. Blocks.
[[nodiscard]] EncodeReading readEncodeCapabilities(const ConfigSession &session, int channel,
                                                   EncodeState &state);

/// Reads the capabilities for the settings in `state.record`, without reading the configuration again.
/// Returns false, and leaves the state unchanged, on failure. Blocks.
bool refreshEncodeCapabilities(const ConfigSession &session, int channel, EncodeState &state);

/// readEncodeCapabilities(), then reads the items of the selected main stream (`streamType`, 0 to 2) and of
/// the sub stream. A refused item counts as not read and does not change the result. If the device stops
/// responding, no further request is sent and the result is the library's error. If `control` ends the step,
/// the remaining items count as not read. If the capabilities were not requested (`isQueried`), the items
/// are unchanged. Blocks.
[[nodiscard]] EncodeReading readEncodeState(const ConfigSession &session, int channel, int streamType,
                                            EncodeState &state, const StepControl &control = {});

/// Result of writeEncodeItems().
struct EncodeWriting
{
    QList<int> notTaken;       ///< indexes of the items that were refused, got no response or were not sent
    bool isDeviceAway = false; ///< the device stopped responding
};

/// Writes the items that were read. Indexes 0 to 3 are video format, video profile, audio compression and
/// audio format of the main stream, 4 to 7 those of the sub stream. `unwanted` are indexes to leave out.
/// These, and items that were not read, are neither written nor in `notTaken`. Writing continues after a
/// refusal. It stops if the device does not respond or `control` ends the step. Blocks.
[[nodiscard]] EncodeWriting writeEncodeItems(const ConfigSession &session, int channel,
                                             const EncodeState &state, const QList<int> &unwanted = {},
                                             const StepControl &control = {});
