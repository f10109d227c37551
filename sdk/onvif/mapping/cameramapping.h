// The image settings of a video source by the operations of the imaging service.
//
// Channels are counted from 0. The functions send requests to the device, and block until `deadline` at most.
// They return NetError::None on success. They fail with NotSupported for a device without the imaging service
// and for a channel, item or group that the device does not have, with InvalidValue for a block of another
// size or a mode that the device does not offer, and with the errors of the requests. The modes of
// CameraItem::Stable are not checked; those of CameraItem::BackLight need only be among the settings of the
// source. Levels of the device are percentages in the blocks; the level of noise reduction is 0 to 4 there. A
// written number outside its range is limited to the range; a value that the source lacks is not written. A
// failed reading leaves `block` and `output` unchanged.
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
/// Writes the values of `text` for CameraMode::Normal to the source; those of the other modes are ignored. A
/// value that the text lacks is written as 0. InvalidValue for an invalid text.
[[nodiscard]] NetError setColorConfiguration(OnvifSession &session, int channel, std::string_view text,
                                             OnvifSession::Deadline deadline);

/// These read and write one CameraItem, whose number is `item`. `block` is the item's block of `size` bytes;
/// its size field and its mode, if any, are set by the caller. CameraItem::Picture can also be written as a
/// VideoColorRecord, of which CameraMode::Normal is written. CameraItem::ChannelName needs a media service
/// instead of the imaging service; it may be read from profiles of up to OnvifSession::recently ago.
[[nodiscard]] NetError cameraItem(OnvifSession &session, std::uint32_t item, int channel, void *block,
                                  std::uint32_t size, OnvifSession::Deadline deadline);
[[nodiscard]] NetError setCameraItem(OnvifSession &session, std::uint32_t item, int channel,
                                     const void *block, std::uint32_t size, OnvifSession::Deadline deadline);

/// Fills `output`, whose size field is set by the caller, from the options that the device reports for the
/// source of `input.channel`.
[[nodiscard]] NetError cameraCapabilities(OnvifSession &session, const CameraCapabilityInput &input,
                                          CameraCapabilities &output, OnvifSession::Deadline deadline);

} // namespace sdk::onvif
