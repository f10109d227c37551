// Common data of the operations of services. An operation is a function that responds to one kind of SOAP
// request.
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

/// The objects that the services of all devices share. Their owner keeps them longer than the services.
struct ServiceContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyFrames &keyFrames;
    FirmwareUploads &uploads;
};

/// One request to one device whose client has the right for the operation. It exists during the call of
/// ServiceOperation::run, on the thread of the connection.
struct ServiceCall
{
    ServiceContext &context;
    const HttpReceiver &receiver;        ///< the MAC of the device, and its end of the connection
    const sdk::demo::SceneDevice device; ///< its state at the arrival of the request
    const DeviceManner manner;           ///< variants of the protocol that the device uses
    const LoginOutcome login;            ///< Anonymous if the operation needs no login
    const pugi::xml_node request;        ///< the operation's element of the request
    XmlElement response;                 ///< the operation's element of the response; not sent after a fault
    const std::int64_t now;              ///< on the site's clock, in ms since 1970

    /// "http://192.168.1.101", "https://[fd00::31]:8443": the scheme, address and port that the client has
    /// used, without a path.
    [[nodiscard]] QString root() const;

    /// Applies `change` to the present state of the device, which may differ from `device`, and returns its
    /// result. The device stays unchanged if `change` returns an error. ConnectTimeout, without a
    /// call of `change`, if the device has left the site. The site is locked during `change`, which must not
    /// use it. The member `device` does not change.
    sdk::NetError change(const std::function<sdk::NetError(sdk::demo::SceneDevice &device)> &change) const;
};

/// The fault that is sent instead of the response; nothing for success.
using ServiceResult = std::optional<SoapFault>;

/// Success, or `fault` for an error.
[[nodiscard]] inline ServiceResult resultOf(sdk::NetError error, const SoapFault &fault)
{
    return error == sdk::NetError::None ? std::nullopt : ServiceResult(fault);
}

/// The clients that may call an operation. A higher UserLevel has the rights of the lower ones.
enum class Access
{
    BeforeLogin,         ///< every client
    ReadSystem,          ///< from User; every client of an uninitialised device
    ReadSystemSensitive, ///< from Operator
    WriteSystem,         ///< Administrator
    FirstUser,           ///< Administrator; every client of an uninitialised device
    ReadMedia,           ///< from User
    Actuate,             ///< from Operator
};

/// An operation of a service. `run` fills ServiceCall::response or returns a fault. It is called on threads
/// of connections, several at a time.
struct ServiceOperation
{
    const char *name; ///< without a prefix: "GetUsers"
    Access access;
    ServiceResult (*run)(ServiceCall &call);
};

using ServiceOperations = std::span<const ServiceOperation>;

} // namespace site
