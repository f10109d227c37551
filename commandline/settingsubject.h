// The first operand of "get" and "set".
#pragma once

#include "commandline/arguments.h"
#include "commandline/settings.h"

namespace commandline {

struct SettingSubject
{
    const SessionSubject *session = nullptr; ///< null: "system"

    /// Whether the subject has a setting of this name that can be set.
    [[nodiscard]] bool knows(const QString &setting) const;
};

/// "encode", "image" or "system"; nullopt for another name.
[[nodiscard]] std::optional<SettingSubject> subjectNamed(const QString &name);

/// The channel of "--channel", from 0; nullopt if it is no number from 1.
[[nodiscard]] std::optional<int> channelOf(const Arguments &arguments);

} // namespace commandline
