#include "device/registry/passwordstrength.h"

#include <QRegularExpression>

#include <array>

namespace {

// Rules that were planned as part of the strength. They are not applied.
constexpr std::array unusedRules = {
    QLatin1StringView(R"(?=^.{8,16}$)((?=.*\d)|(?=.*\W+))(?![.\n])(?=.*[A-Z])(?=.*[a-z]).*$)"),
    QLatin1StringView(R"(?!^\d+$)(?!^[a-zA-Z]+$).{8,})"),
    QLatin1StringView(R"(?!^\d+$)(?!^[a-zA-Z]+$).{6,})"),
};
static_assert(unusedRules.size() == 3);

} // namespace

int passwordStrength(const QString &password)
{
    if (password.isEmpty())
        return 0;
    const auto holds = [&password](const char *pattern) {
        return password.contains(QRegularExpression(QLatin1String(pattern)));
    };
    int kinds = 0;
    if (holds("[0-9]"))
        ++kinds;
    if (holds("[a-z]") || holds("[A-Z]"))
        ++kinds;
    if (holds("[\\W]"))
        ++kinds;
    return kinds;
}
