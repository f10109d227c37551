// Common data of the operations of services.
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
class KeyFrames;

/// The context of the services of all devices.
struct ServiceContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyFrames &keyFrames;
    FirmwareUploads &uploads;
};

/// One authorised request to one device.
struct ServiceCall
{
    ServiceContext &context;
    const HttpReceiver &receiver;
    const sdk::demo::SceneDevice device; ///< its state at the arrival of the request
    const DeviceManner manner;
    const LoginOutcome login;
    const pugi::xml_node request; ///< the operation's element
    XmlElement response;          ///< the operation's element of the response
    const std::int64_t now;       ///< on the site's clock, in ms since 1970

    /// "http://192.168.1.101", "https://[fd00::31]:8443": the scheme, address and port that the client has
    /// used.
    [[nodiscard]] QString root() const;

    /// Applies `change` to the device. NetError::ConnectTimeout when it has left the site.
    sdk::NetError change(const std::function<sdk::NetError(sdk::demo::SceneDevice &device)> &change) const;
};

/// Nothing for success.
using ServiceResult = std::optional<SoapFault>;

/// Success, or `fault` for an error.
[[nodiscard]] inline ServiceResult resultOf(sdk::NetError error, const SoapFault &fault)
{
    return error == sdk::NetError::None ? std::nullopt : ServiceResult(fault);
}

/// The access class of an operation.
enum class Access
{
    BeforeLogin,         ///< every client
    ReadSystem,          ///< users; every client of an uninitialised device
    ReadSystemSensitive, ///< operators
    WriteSystem,         ///< administrators
    FirstUser,           ///< administrators; every client of an uninitialised device
    ReadMedia,           ///< users
    Actuate,             ///< operators
};

struct ServiceOperation
{
    const char *name; ///< without a prefix: "GetUsers"
    Access access;
    ServiceResult (*run)(ServiceCall &call);
};

using ServiceOperations = std::span<const ServiceOperation>;

} // namespace site
