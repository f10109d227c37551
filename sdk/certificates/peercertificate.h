// Reads the certificate of a device.
#pragma once

#include "sdk/certificateblocks.h"

struct x509_st;

namespace sdk {

/// Returns a block with its size, and with the fingerprint of the public key, the subject and the validity of
/// `certificate`, which is an X509 pointer of OpenSSL, not null and not owned. Port, address and identity of
/// the result are not set. The fingerprint is empty if the key cannot be read. Control characters of the
/// subject are replaced by spaces; a subject without a common name is empty.
[[nodiscard]] DeviceCertificate readPeerCertificate(const x509_st *certificate);

} // namespace sdk
