#include "site/services/deviceusers.h"

#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/site/devicechanges.h"
#include "site/services/userlevel.h"

#include <set>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr qsizetype mostUsers = 20;
constexpr qsizetype longestText = 63; // of a name or a password

struct RequestedUser
{
    SceneAccount account;
    std::optional<UserLevel> level;
};

RequestedUser readUser(pugi::xml_node element)
{
    return {{textAt(element, "tt:Username").value_or(QString()),
             textAt(element, "tt:Password").value_or(QString())},
            userLevelNamed(textAt(element, "tt:UserLevel").value_or(QString()))};
}

std::vector<RequestedUser> readUsers(pugi::xml_node request)
{
    std::vector<RequestedUser> users;
    for (const pugi::xml_node element : request.children()) {
        if (isNamed(element, "tds:User"))
            users.push_back(readUser(element));
    }
    return users;
}

ServiceResult objectionTo(const RequestedUser &user)
{
    if (user.account.user.isEmpty() || user.account.user.size() > longestText)
        return SoapFault::invalid("ter:UsernameTooLong", u"The name of the user cannot be used"_s);
    if (user.account.password.size() > longestText)
        return SoapFault::invalid("ter:PasswordTooLong", u"The password is too long"_s);
    if (user.account.password.isEmpty())
        return SoapFault::invalid("ter:PasswordTooWeak", u"A password is required"_s);
    return std::nullopt;
}

ServiceResult createFirstUser(const ServiceCall &call, const RequestedUser &user)
{
    if (user.level != UserLevel::Administrator)
        return SoapFault::invalid("ter:AnonymousNotAllowed", u"The first user must be an administrator"_s);
    const sdk::NetError error = initialiseDevice(call.context.site, call.device.mac, user.account);
    return resultOf(error, SoapFault::prohibited(u"The device refuses its first user"_s));
}

} // namespace

ServiceResult getUsers(ServiceCall &call)
{
    if (call.device.isUninitialised())
        return std::nullopt;
    for (const SceneAccount &account : call.device.accounts) {
        XmlElement user = call.response.add("tds:User");
        user.add("tt:Username", account.user);
        user.add("tt:UserLevel", userLevelName(userLevelOf(call.device, account.user)));
    }
    return std::nullopt;
}

ServiceResult createUsers(ServiceCall &call)
{
    const std::vector<RequestedUser> users = readUsers(call.request);
    std::set<QString> names;
    // The first user replaces the accounts of a device that is not initialised.
    if (!call.device.isUninitialised()) {
        for (const SceneAccount &account : call.device.accounts)
            names.insert(account.user);
    }
    for (const RequestedUser &user : users) {
        if (ServiceResult objection = objectionTo(user))
            return objection;
        if (!user.level)
            return SoapFault::invalid("ter:AnonymousNotAllowed", u"The user level is unknown"_s);
        if (!names.insert(user.account.user).second)
            return SoapFault{true, "ter:OperationProhibited", "ter:UsernameClash",
                             u"The user already exists"_s};
    }
    if (users.empty())
        return SoapFault::invalid("ter:UsernameMissing", u"The request contains no user"_s);
    if (static_cast<qsizetype>(names.size()) > mostUsers)
        return SoapFault{false, "ter:Action", "ter:TooManyUsers", u"The device cannot store more users"_s};
    std::size_t first = 0;
    if (call.device.isUninitialised()) {
        if (ServiceResult objection = createFirstUser(call, users.front()))
            return objection;
        first = 1;
    }
    const sdk::NetError error = call.change([&](SceneDevice &device) {
        for (const RequestedUser &user : users) {
            if (&user - users.data() >= static_cast<std::ptrdiff_t>(first))
                device.accounts.append(user.account);
            setUserLevel(device, user.account.user, *user.level);
        }
        return sdk::NetError::None;
    });
    return resultOf(error, SoapFault::failed(u"The users cannot be created"_s));
}

ServiceResult setUser(ServiceCall &call)
{
    const std::vector<RequestedUser> users = readUsers(call.request);
    for (const RequestedUser &user : users) {
        const SceneAccount *account = accountOf(call.device, user.account.user);
        if (!account)
            return SoapFault::invalid("ter:UsernameMissing", u"The user is unknown"_s);
        // Without a password, the password of the user is not changed.
        const bool hasPassword = !user.account.password.isEmpty();
        if (ServiceResult objection = hasPassword ? objectionTo(user) : std::nullopt)
            return objection;
        const sdk::NetError error = call.change([&](SceneDevice &device) {
            const sdk::NetError changed =
                hasPassword ? changePassword(device, account->user, account->password, user.account.password)
                            : sdk::NetError::None;
            if (changed == sdk::NetError::None && user.level)
                setUserLevel(device, account->user, *user.level);
            return changed;
        });
        if (error != sdk::NetError::None)
            return SoapFault::prohibited(u"The device refuses the new password"_s);
    }
    return std::nullopt;
}

ServiceResult deleteUsers(ServiceCall &call)
{
    QStringList names;
    for (const pugi::xml_node element : call.request.children()) {
        if (isNamed(element, "tds:Username"))
            names.append(textOf(element).trimmed());
    }
    for (const QString &name : std::as_const(names)) {
        if (!accountOf(call.device, name))
            return SoapFault::invalid("ter:UsernameMissing", u"The user is unknown"_s);
        if (name == call.login.user)
            return SoapFault{true, "ter:InvalidArgVal", "ter:FixedUser", u"The user is logged in"_s};
    }
    const sdk::NetError error = call.change([&](SceneDevice &device) {
        device.accounts.removeIf([&](const SceneAccount &account) { return names.contains(account.user); });
        return sdk::NetError::None;
    });
    return resultOf(error, SoapFault::failed(u"The users cannot be deleted"_s));
}

} // namespace site
