// Who decides about the certificates of devices.
#pragma once

#include "sdk/certificateblocks.h"

#include <mutex>

namespace sdk {

/// Shared by all who make connections over TLS. Thread-safe. Until a handler is set every certificate is
/// Unknown.
class CertificateDecision
{
public:
    void setHandler(CertificateHandler handler, void *user);

    /// Asks the handler, on the calling thread.
    [[nodiscard]] CertificateVerdict verdictOn(const DeviceCertificate &certificate) const;

private:
    mutable std::mutex m_mutex; ///< not held while the handler runs
    CertificateHandler m_handler = nullptr;
    void *m_user = nullptr;
};

} // namespace sdk
