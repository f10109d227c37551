// The levels of a device's users in its services.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QString>

#include <optional>

namespace site {

/// In the order of the rights: a level has those of the levels before it.
enum class UserLevel
{
    Anonymous,
    User,
    Operator,
    Administrator,
};

/// The name of a level in messages of the device service: "Administrator".
[[nodiscard]] const char *userLevelName(UserLevel level);

/// The level of such a name. Nothing for an unknown name, and for "Anonymous", which no user has.
[[nodiscard]] std::optional<UserLevel> userLevelNamed(const QString &name);

/// The level that setUserLevel() has stored for that name; Administrator if there is none, as for the users
/// of the scene and for an unknown user.
[[nodiscard]] UserLevel userLevelOf(const sdk::demo::SceneDevice &device, const QString &user);

/// Stores the level of a user, which must not be Anonymous, in the serviceState() of `device`, until the
/// device is reset. The caller has `device` from ServiceCall::change().
void setUserLevel(sdk::demo::SceneDevice &device, const QString &user, UserLevel level);

} // namespace site
