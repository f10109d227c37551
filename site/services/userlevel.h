// The levels of a device's users.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QString>

#include <optional>

namespace site {

enum class UserLevel
{
    Anonymous,
    User,
    Operator,
    Administrator,
};

/// The name in messages of the device service: "Administrator".
[[nodiscard]] const char *userLevelName(UserLevel level);

/// Nothing for an unknown name, and for "Anonymous", which no user has.
[[nodiscard]] std::optional<UserLevel> userLevelNamed(const QString &name);

/// Users of the scene are administrators; created users have the level of their creation.
[[nodiscard]] UserLevel userLevelOf(const sdk::demo::SceneDevice &device, const QString &user);

void setUserLevel(sdk::demo::SceneDevice &device, const QString &user, UserLevel level);

} // namespace site
