// The user-name token of WS-Security: a login in the header of a SOAP request.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// The element wsse:Security, as an XML text, for the header of one request (SoapRequest::text()). It
/// contains the account and the digest of the password with a new random nonce and `deviceTime`. `deviceTime`
/// is the present time of the device's clock, in UTC: a device refuses a token whose time differs from its
/// clock by minutes.
[[nodiscard]] std::string passwordToken(std::string_view account, std::string_view password,
                                        std::chrono::system_clock::time_point deviceTime);

/// The digest of the token, in base64: SHA-1 over the bytes of `nonce` (not its base64 text), the text of the
/// time `created` in ISO 8601, and the password in UTF-8 (OASIS Web Services Security UsernameToken Profile
/// 1.0, section 3.1).
[[nodiscard]] std::string passwordDigest(std::string_view nonce, std::string_view created,
                                         std::string_view password);

} // namespace sdk::onvif
