// The actions of the system commands on one device.
#pragma once

#include "sdk/sdklibraries.h"

#include <QVariantMap>

#include <cstdint>
#include <functional>
#include <optional>

/// Executes a command on a logged-in device. Blocks for the timeouts of the library; any thread. Returns 0
/// on success, otherwise the library's error, or ConfigSession::unusableText if a configuration cannot be
/// read or written as text.
using SystemAction = std::function<std::uint32_t(std::int64_t loginHandle)>;

/// The action of a SystemCommand with its data (keys of SystemDataKey); sends nothing. nullopt for a command
/// without an action, also those that SystemOperations executes itself ("loginCheck", "modifyPassword",
/// "cancelLogin", "readTime"), and for data that the command does not accept. `libraries.net` must not be
/// null. The action shares the ownership of the libraries.
[[nodiscard]] std::optional<SystemAction> systemAction(const sdk::SdkLibraries &libraries,
                                                       const QString &command, const QVariantMap &data);
