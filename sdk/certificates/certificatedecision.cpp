#include "sdk/certificates/certificatedecision.h"

namespace sdk {

void CertificateDecision::setHandler(CertificateHandler handler, void *user)
{
    const std::scoped_lock lock(m_mutex);
    m_handler = handler;
    m_user = user;
}

CertificateVerdict CertificateDecision::verdictOn(const DeviceCertificate &certificate) const
{
    CertificateHandler handler = nullptr;
    void *user = nullptr;
    {
        const std::scoped_lock lock(m_mutex);
        handler = m_handler;
        user = m_user;
    }
    return handler ? handler(&certificate, user) : CertificateVerdict::Unknown;
}

} // namespace sdk
