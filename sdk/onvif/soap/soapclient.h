// Calls of operations of a device's services.
#pragma once

#include "sdk/neterror.h"
#include "sdk/onvif/soap/httpclient.h"
#include "sdk/onvif/soap/soaprequest.h"
#include "sdk/onvif/soap/xmldocument.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

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
    bool mayLackRight = false; ///< a fault that stands for a wrong password and for a missing right alike
    std::string reason = {};   ///< the text of a fault, for a log
    std::unique_ptr<XmlDocument> document = {};
    XmlElement content = {}; ///< the first element of the body; empty on failure

    [[nodiscard]] bool isOk() const { return error == NetError::None; }
};

/// Calls operations of one device with one account. Several threads may use it.
///
/// The first request that needs a login is sent without one: the refusal says which method the device takes.
/// So a wrong password is sent once, not once for each method. Until the device has accepted the password,
/// one call at a time sends it. After the device has refused the password, no further call sends it: each
/// fails with WrongPassword, with SessionEnded if the password was right before, or with AccountLocked.
///
/// A refusal counts for the password that was sent: when it has been changed meanwhile, the call is repeated.
/// When the password was right before, two other reasons are ruled out first. The clock of the device may
/// have been set, which makes tokens invalid: it is read again. The account may lack the right for the
/// operation: then the device still accepts the operation that has proved the password, and the call fails
/// with Refused.
class SoapClient
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    /// Reads the device's clock without a login: its time minus this computer's.
    using ClockReader = std::function<std::optional<std::chrono::milliseconds>(Deadline deadline)>;

    SoapClient(HttpLogin login, std::shared_ptr<HttpClient> http);

    /// To be set before the first call.
    void setClockReader(ClockReader reader) { m_readClock = std::move(reader); }

    /// A call with the login, where the device needs one.
    [[nodiscard]] SoapAnswer call(const ServiceAddress &service, const SoapRequest &request,
                                  Deadline deadline);

    /// A call that never sends the login.
    [[nodiscard]] SoapAnswer callOpenly(const ServiceAddress &service, const SoapRequest &request,
                                        Deadline deadline);

    /// The device's clock minus this computer's, for the token.
    void setClockOffset(std::chrono::milliseconds offset) { m_clockOffset = offset.count(); }

    /// Refusals are judged after the lock's end: for a call that changes the password, up to setPassword().
    [[nodiscard]] std::unique_lock<std::recursive_mutex> delayRefusals() { return std::unique_lock(m_order); }

    /// The login of later calls: the password was changed with this session.
    void setPassword(const std::string &password);

    /// Whether the device has accepted the password in a call.
    [[nodiscard]] bool isConfirmed() const { return m_isConfirmed; }

    /// The error of every further call, after the device has refused the password.
    [[nodiscard]] std::optional<NetError> refusal() const;

    /// The device has refused `refused` by another way, such as a stream.
    void setRefused(const HttpLogin &refused);
    [[nodiscard]] HttpLogin login() const;
    [[nodiscard]] HttpClient &http() { return *m_http; }

private:
    /// What a request was sent with.
    struct SentLogin
    {
        HttpLogin login = {};
        std::int64_t clockOffset = 0; ///< milliseconds
    };

    /// An operation without parameters that the device has accepted first, and only with the login.
    struct Proof
    {
        ServiceAddress service = {};
        std::string operation = {};
    };

    [[nodiscard]] SoapAnswer send(const ServiceAddress &service, const SoapRequest &request,
                                  LoginMethod method, Deadline deadline, LoginMethod &offered,
                                  const SentLogin &sent);
    [[nodiscard]] SoapAnswer sendLogin(const ServiceAddress &service, const SoapRequest &request,
                                       Deadline deadline, SentLogin &sent);
    [[nodiscard]] SoapAnswer judgeRefusal(SoapAnswer answer, SentLogin sent, const ServiceAddress &service,
                                          const SoapRequest &request, Deadline deadline);
    [[nodiscard]] bool hasClockMoved(const SentLogin &sent, Deadline deadline);
    [[nodiscard]] NetError provePassword(Deadline deadline);
    void confirm(const ServiceAddress &service, const SoapRequest &request);
    NetError noteRefusal(NetError error);

    const std::shared_ptr<HttpClient> m_http;
    ClockReader m_readClock;
    std::recursive_mutex m_order; ///< held while it is open whether the password is right; before m_mutex
    mutable std::mutex m_mutex;   ///< of the next three
    HttpLogin m_login;
    std::optional<NetError> m_refusal;
    std::optional<Proof> m_proof;
    std::atomic<std::int64_t> m_clockOffset = 0; ///< milliseconds
    std::atomic<LoginMethod> m_method = LoginMethod::Unknown;
    std::atomic_bool m_isConfirmed = false;
};

/// Reads the answer of an HTTP exchange: the content of the body, or the error that a fault or the status
/// stands for. `reason` is set from the fault's text.
[[nodiscard]] SoapAnswer readSoapAnswer(const HttpAnswer &answer);

} // namespace sdk::onvif
