// Reads a certificate that a device has shown.
#pragma once

#include "sdk/certificateblocks.h"

struct x509_st;

namespace sdk {

/// The fingerprint of the public key, the subject and the validity; the device's address is left empty. The
/// fingerprint is empty for a certificate whose key cannot be read.
[[nodiscard]] DeviceCertificate readPeerCertificate(const x509_st *certificate);

} // namespace sdk
