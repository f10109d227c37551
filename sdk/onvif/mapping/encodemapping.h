// The encode settings of a channel by the operations of the media services.
//
// Channels are counted from 0. A channel has the streams StreamKind::MainNormal and Sub. The functions fail
// with NotSupported for a channel or stream that the device does not have, and with InvalidValue for a block
// of another size or a value that the standard cannot express.
#pragma once

#include "sdk/encodeblocks.h"
#include "sdk/onvif/session/onvifsession.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text "Encode" of a channel. On failure `error` is set and the text is empty.
[[nodiscard]] std::string encodeConfiguration(OnvifSession &session, int channel,
                                              OnvifSession::Deadline deadline, NetError &error);
/// Writes the streams one after another, without those whose video is disabled in `text`. After an error, the
/// earlier ones stay written.
[[nodiscard]] NetError setEncodeConfiguration(OnvifSession &session, int channel, std::string_view text,
                                              OnvifSession::Deadline deadline);

/// Reads or writes an EncodeItem. `block` is the item's block of `size` bytes; its size and stream fields are
/// set by the caller.
[[nodiscard]] NetError encodeItem(OnvifSession &session, std::uint32_t item, int channel, void *block,
                                  std::uint32_t size, OnvifSession::Deadline deadline);
[[nodiscard]] NetError setEncodeItem(OnvifSession &session, std::uint32_t item, int channel,
                                     const void *block, std::uint32_t size, OnvifSession::Deadline deadline);

/// Fills `output` from the options that the device reports for its encoders.
[[nodiscard]] NetError encodeCapabilities(OnvifSession &session, const EncodeCapabilityInput &input,
                                          EncodeCapabilities &output, OnvifSession::Deadline deadline);

} // namespace sdk::onvif
