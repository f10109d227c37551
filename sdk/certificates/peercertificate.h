// Reads the certificate of a device.
#pragma once

#include "sdk/certificateblocks.h"

struct x509_st;

namespace sdk {

/// The fingerprint of the public key, the subject and the validity; the device's address is not set. The
/// fingerprint is empty for a certificate whose key cannot be read.
[[nodiscard]] DeviceCertificate readPeerCertificate(const x509_st *certificate);

} // namespace sdk
