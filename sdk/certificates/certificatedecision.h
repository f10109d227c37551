// The decision about the certificates of devices.
#pragma once

#include "sdk/certificateblocks.h"

#include <mutex>

namespace sdk {

/// Holds the handler that decides about certificates (NetSetCertificateHandler). Shared by the TLS
/// connections of its owner, which call verdictOn() during their handshakes. Thread-safe.
class CertificateDecision
{
public:
    /// Replaces the handler; null removes it. `user` is passed to each call of `handler`. Calls of the
    /// previous handler may still run after the return, so its `user` must stay valid until the connections
    /// have ended.
    void setHandler(CertificateHandler handler, void *user);

    /// Calls the handler on the calling thread, and returns its verdict. Without a handler every certificate
    /// is CertificateVerdict::Unknown, which means refused.
    [[nodiscard]] CertificateVerdict verdictOn(const DeviceCertificate &certificate) const;

private:
    mutable std::mutex m_mutex; ///< not held while the handler runs
    CertificateHandler m_handler = nullptr;
    void *m_user = nullptr;
};

} // namespace sdk
