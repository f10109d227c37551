// Calls of operations of a device's services.
#pragma once

#include "sdk/neterror.h"
#include "sdk/onvif/soap/httpclient.h"
#include "sdk/onvif/soap/soaprequest.h"
#include "sdk/onvif/soap/xmldocument.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace sdk::onvif {

/// How a device takes a login.
enum class LoginMethod
{
    Unknown, ///< no request that needs a login was made yet
    Token,   ///< user-name token of WS-Security in the SOAP header
    Digest,  ///< HTTP Digest
};

/// The answer to a call.
struct SoapAnswer
{
    NetError error = NetError::None;
    std::string reason = {}; ///< the text of a fault, for a log
    std::unique_ptr<XmlDocument> document = {};
    XmlElement content = {}; ///< the first element of the body; empty on failure

    [[nodiscard]] bool isOk() const { return error == NetError::None; }
};

/// Calls operations of one device with one account. Several threads may use it.
///
/// The first request that needs a login is sent without one: the refusal says which method the device takes.
/// So a wrong password is sent once, not once for each method. After the device has refused the password, no
/// further call sends it: each fails with WrongPassword, or with SessionEnded if the password was right
/// before.
class SoapClient
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    SoapClient(HttpLogin login, std::shared_ptr<HttpClient> http);

    /// A call with the login, where the device needs one.
    [[nodiscard]] SoapAnswer call(const ServiceAddress &service, const SoapRequest &request,
                                  Deadline deadline);

    /// A call that never sends the login.
    [[nodiscard]] SoapAnswer callOpenly(const ServiceAddress &service, const SoapRequest &request,
                                        Deadline deadline);

    /// The device's clock minus this computer's, for the token.
    void setClockOffset(std::chrono::milliseconds offset) { m_clockOffset = offset.count(); }

    /// The login of later calls: the password was changed with this session.
    void setPassword(const std::string &password);

    /// Whether the device has accepted the password in a call.
    [[nodiscard]] bool isConfirmed() const { return m_isConfirmed; }
    [[nodiscard]] bool isRefused() const { return m_isRefused; }
    /// The device has refused the password by another way, such as a stream.
    void setRefused() { m_isRefused = true; }
    [[nodiscard]] HttpLogin login() const;
    [[nodiscard]] HttpClient &http() { return *m_http; }

private:
    [[nodiscard]] SoapAnswer send(const ServiceAddress &service, const SoapRequest &request,
                                  LoginMethod method, Deadline deadline, LoginMethod &offered);
    [[nodiscard]] NetError refusal() const;

    const std::shared_ptr<HttpClient> m_http;
    mutable std::mutex m_mutex; ///< of the login
    HttpLogin m_login;
    std::atomic<std::int64_t> m_clockOffset = 0; ///< milliseconds
    std::atomic<LoginMethod> m_method = LoginMethod::Unknown;
    std::atomic_bool m_isConfirmed = false;
    std::atomic_bool m_isRefused = false;
};

/// Reads the answer of an HTTP exchange: the content of the body, or the error that a fault or the status
/// stands for. `reason` is set from the fault's text.
[[nodiscard]] SoapAnswer readSoapAnswer(const HttpAnswer &answer);

} // namespace sdk::onvif
