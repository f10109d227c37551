// The encode settings of a channel by the operations of the media services.
//
// Channels are counted from 0. A channel has the streams StreamKind::MainNormal and Sub; Sub may be missing.
// The functions send requests to the device, and block until `deadline` at most. They return NetError::None
// on success. They fail with NotSupported for a channel or stream that the device does not have, with
// InvalidValue for a block of another size, for a value that the standard cannot express and for an audio
// format that the device does not offer, and with the errors of the requests. Reading may use profiles of up
// to OnvifSession::recently ago. Writing reads the present profiles, and clears the cache of the session.
#pragma once

#include "sdk/encodeblocks.h"
#include "sdk/onvif/session/onvifsession.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text "Encode" of a channel, always read from the device. A missing Sub has the video
/// disabled in the text. On failure `error` is set and the text is empty.
[[nodiscard]] std::string encodeConfiguration(OnvifSession &session, int channel,
                                              OnvifSession::Deadline deadline, NetError &error);
/// Writes the streams one after another, MainNormal first. A stream whose video is disabled in `text` is
/// skipped, and so is the sound of a stream whose sound is disabled in `text` or missing at the device.
/// Values that `text` lacks count as 0. The first error ends the call; the earlier streams stay written.
/// InvalidValue for an invalid text.
[[nodiscard]] NetError setEncodeConfiguration(OnvifSession &session, int channel, std::string_view text,
                                              OnvifSession::Deadline deadline);

/// These read and write one EncodeItem, whose number is `item`. `block` is the item's block of `size` bytes;
/// its size and stream fields are set by the caller. A stream cannot be disabled (InvalidValue), and sound
/// cannot be enabled or disabled (NotSupported). EncodeItem::VideoProfile is written for H.264 only: for
/// another codec and for an unknown number nothing is written, and the result is None.
[[nodiscard]] NetError encodeItem(OnvifSession &session, std::uint32_t item, int channel, void *block,
                                  std::uint32_t size, OnvifSession::Deadline deadline);
[[nodiscard]] NetError setEncodeItem(OnvifSession &session, std::uint32_t item, int channel,
                                     const void *block, std::uint32_t size, OnvifSession::Deadline deadline);

/// Fills `output`, whose size field is set by the caller, from the options that the device reports for the
/// encoders of `input.channel`; `input.text` is not used. A stream that the channel lacks has
/// EncodeValue::Stream in `missingValues`. After an error, `output` is unchanged.
[[nodiscard]] NetError encodeCapabilities(OnvifSession &session, const EncodeCapabilityInput &input,
                                          EncodeCapabilities &output, OnvifSession::Deadline deadline);

} // namespace sdk::onvif
