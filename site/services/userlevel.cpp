#include "site/services/userlevel.h"

#include "site/services/servicestate.h"

#include <QJsonObject>

#include <array>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

struct LevelName
{
    UserLevel level;
    const char *name;
};
constexpr std::array levelNames = {
    LevelName{UserLevel::Administrator, "Administrator"},
    LevelName{UserLevel::Operator, "Operator"},
    LevelName{UserLevel::User, "User"},
};

} // namespace

const char *userLevelName(UserLevel level)
{
    for (const LevelName &known : levelNames) {
        if (known.level == level)
            return known.name;
    }
    return "Anonymous";
}

std::optional<UserLevel> userLevelNamed(const QString &name)
{
    for (const LevelName &known : levelNames) {
        if (name == QLatin1String(known.name))
            return known.level;
    }
    return std::nullopt;
}

UserLevel userLevelOf(const SceneDevice &device, const QString &user)
{
    const QJsonObject levels = serviceState(device, u"levels"_s).toObject();
    return userLevelNamed(levels.value(user).toString()).value_or(UserLevel::Administrator);
}

void setUserLevel(SceneDevice &device, const QString &user, UserLevel level)
{
    QJsonObject levels = serviceState(device, u"levels"_s).toObject();
    levels.insert(user, QString::fromLatin1(userLevelName(level)));
    setServiceState(device, u"levels"_s, levels);
}

} // namespace site
