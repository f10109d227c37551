// The decision about the certificates of devices.
#pragma once

#include "sdk/certificateblocks.h"

#include <mutex>

namespace sdk {

/// Shared by all TLS connections. Thread-safe. Without a handler every certificate is Unknown.
class CertificateDecision
{
public:
    void setHandler(CertificateHandler handler, void *user);

    /// Calls the handler on the calling thread.
    [[nodiscard]] CertificateVerdict verdictOn(const DeviceCertificate &certificate) const;

private:
    mutable std::mutex m_mutex; ///< not held while the handler runs
    CertificateHandler m_handler = nullptr;
    void *m_user = nullptr;
};

} // namespace sdk
