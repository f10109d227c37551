// What the operations of services share.
#pragma once

#include "sdk/demo/demosite.h"
#include "sdk/neterror.h"
#include "site/devicelogins.h"
#include "site/http/httpexchange.h"
#include "site/siteoptions.h"
#include "site/soap/soapfault.h"
#include "site/soap/xmlreading.h"
#include "site/soap/xmlwriting.h"

#include <functional>
#include <optional>
#include <span>

namespace site {

class FirmwareUploads;
class KeyPictures;

/// What the services of all devices work with.
struct ServiceContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyPictures &keyPictures;
    FirmwareUploads &uploads;
};

/// One request to one device, which has been let in.
struct ServiceCall
{
    ServiceContext &context;
    const HttpReceiver &receiver;
    const sdk::demo::SceneDevice device; ///< as it was when the request came
    const DeviceManner manner;
    const LoginOutcome login;
    const pugi::xml_node request; ///< the operation's element
    XmlElement response;          ///< the same of the answer
    const std::int64_t now;       ///< on the site's clock

    /// "http://192.168.1.101": as the client has reached the device.
    [[nodiscard]] QString root() const;

    /// Lets `change` change the device. NetError::ConnectTimeout when it has left the site.
    sdk::NetError change(const std::function<sdk::NetError(sdk::demo::SceneDevice &device)> &change) const;
};

/// Nothing for success.
using ServiceResult = std::optional<SoapFault>;

/// Success, or `fault` for an error.
[[nodiscard]] inline ServiceResult resultOf(sdk::NetError error, const SoapFault &fault)
{
    return error == sdk::NetError::None ? std::nullopt : ServiceResult(fault);
}

/// Who may use an operation.
enum class Access
{
    BeforeLogin,         ///< everybody
    ReadSystem,          ///< users; everybody while the device waits for its first password
    ReadSystemSensitive, ///< operators
    WriteSystem,         ///< administrators
    FirstUser,           ///< administrators; everybody while the device waits for its first password
    ReadMedia,           ///< users
    Actuate,             ///< operators
};

struct ServiceOperation
{
    const char *name;
    Access access;
    ServiceResult (*run)(ServiceCall &call);
};

using ServiceOperations = std::span<const ServiceOperation>;

} // namespace site
