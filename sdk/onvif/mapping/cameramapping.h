// The image settings of a video source by the operations of the imaging service.
//
// Channels are counted from 0. The functions fail with NotSupported for a channel, item or group that the
// device does not have, and with InvalidValue for a block of another size or a value that the device does not
// offer.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/onvif/session/onvifsession.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text "VideoColor" of a channel. The standard has no settings by CameraMode: all modes
/// have the same values. On failure `error` is set and the text is empty.
[[nodiscard]] std::string colorConfiguration(OnvifSession &session, int channel,
                                             OnvifSession::Deadline deadline, NetError &error);
/// Writes the values of CameraMode::Normal.
[[nodiscard]] NetError setColorConfiguration(OnvifSession &session, int channel, std::string_view text,
                                             OnvifSession::Deadline deadline);

/// Reads or writes a CameraItem. CameraItem::Picture can also be written as a VideoColorRecord. `block` is
/// the item's block of `size` bytes; its size field and its mode, if any, are set by the caller.
[[nodiscard]] NetError cameraItem(OnvifSession &session, std::uint32_t item, int channel, void *block,
                                  std::uint32_t size, OnvifSession::Deadline deadline);
[[nodiscard]] NetError setCameraItem(OnvifSession &session, std::uint32_t item, int channel,
                                     const void *block, std::uint32_t size, OnvifSession::Deadline deadline);

/// Fills `output` from the options that the device reports for the source.
[[nodiscard]] NetError cameraCapabilities(OnvifSession &session, const CameraCapabilityInput &input,
                                          CameraCapabilities &output, OnvifSession::Deadline deadline);

} // namespace sdk::onvif
