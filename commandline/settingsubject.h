// The first operand of "get" and "set".
#pragma once

#include "commandline/arguments.h"
#include "commandline/settings.h"

namespace commandline {

/// The subject of settings.
struct SettingSubject
{
    const SessionSubject *session = nullptr; ///< of "encode" and "image"; null for "system"

    /// Whether the subject has a setting of this name that can be set.
    [[nodiscard]] bool knows(const QString &setting) const;
};

/// The subject with the name "encode", "image" or "system"; nullopt for another name.
[[nodiscard]] std::optional<SettingSubject> subjectNamed(const QString &name);

/// The channel of "--channel", converted to count from 0; 0 without that option. nullopt if its value is no
/// number from 1.
[[nodiscard]] std::optional<int> channelOf(const Arguments &arguments);

} // namespace commandline
