#pragma once

#include "cgi/httptransport.h"
#include "sdk/certificates/certificatedecision.h"

#include <mutex>

/// Requests through libcurl, each with an easy handle of its own. Only HTTP and HTTPS.
class CurlTransport : public HttpTransport
{
public:
    /// How long a connection may take to come about.
    explicit CurlTransport(std::chrono::seconds connectLimit = defaultConnectLimit);

    void setProxy(const QString &proxy) override;
    void setCertificateHandler(sdk::CertificateHandler handler, void *user) override;
    [[nodiscard]] std::unique_ptr<HttpConversation> open(const CgiRequest &request) override;

private:
    static constexpr std::chrono::seconds defaultConnectLimit{5};

    const std::chrono::seconds m_connectLimit;
    const std::shared_ptr<sdk::CertificateDecision> m_certificates =
        std::make_shared<sdk::CertificateDecision>();
    std::mutex m_mutex; ///< of the proxy
    QByteArray m_proxy;
};
