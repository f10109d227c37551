#pragma once

#include "cgi/httptransport.h"
#include "sdk/certificates/certificatedecision.h"

#include <mutex>

/// Requests by libcurl, each with a separate easy handle. HTTP and HTTPS only. A failure is also printed to
/// the standard error. Thread-safe.
class CurlTransport : public HttpTransport
{
public:
    /// `connectLimit` is the timeout of a connection attempt.
    explicit CurlTransport(std::chrono::seconds connectLimit = defaultConnectLimit);

    void setProxy(const QString &proxy) override;
    void setCertificateHandler(sdk::CertificateHandler handler, void *user) override;
    [[nodiscard]] std::unique_ptr<PreparedHttpRequest> open(const CgiRequest &request) override;

private:
    static constexpr std::chrono::seconds defaultConnectLimit{5};

    const std::chrono::seconds m_connectLimit;
    const std::shared_ptr<sdk::CertificateDecision> m_certificates =
        std::make_shared<sdk::CertificateDecision>();
    std::mutex m_mutex; ///< guards the proxy
    QByteArray m_proxy;
};
