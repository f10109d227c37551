// What the commands of the system configuration do with a device.
#pragma once

#include "sdk/sdklibraries.h"

#include <QVariantMap>

#include <cstdint>
#include <functional>
#include <optional>

/// Does its work on a logged-in device, which may take the library's waits. Returns the error of the library,
/// 0 when the device accepted it.
using SystemAction = std::function<std::uint32_t(std::int64_t loginHandle)>;

/// The action of a command that does one thing with each device. Nothing for an unknown command, and for data
/// that the command cannot use. `libraries` has a network library.
[[nodiscard]] std::optional<SystemAction> systemAction(const sdk::SdkLibraries &libraries,
                                                       const QString &command, const QVariantMap &data);
