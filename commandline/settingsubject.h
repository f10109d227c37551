// The first operand of the commands "get" and "set", and the channel of their settings.
#pragma once

#include "commandline/arguments.h"
#include "commandline/settings.h"

namespace commandline {

/// The subject of settings: "encode", "image" or "system".
struct SettingSubject
{
    const SessionSubject *session = nullptr; ///< of "encode" and "image"; null for "system"; not owned

    /// Whether the subject has a setting of this name that can be set.
    [[nodiscard]] bool knows(const QString &setting) const;
};

/// The subject with the name "encode", "image" or "system"; nullopt for another name.
[[nodiscard]] std::optional<SettingSubject> subjectNamed(const QString &name);

/// The channel of "--channel", also of the command "snapshot", converted to count from 0; 0 without that
/// option. nullopt if its value is not an integer of at least 1. Whether a device has the channel is not
/// known here.
[[nodiscard]] std::optional<int> channelOf(const Arguments &arguments);

} // namespace commandline
