// The user-name token of WS-Security: a login in the header of a SOAP request.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// The security header (an XML text) of one request: the password as a digest with a nonce and `deviceTime`,
/// the time of the device's clock. A device refuses a token whose time differs from its clock by minutes.
[[nodiscard]] std::string passwordToken(std::string_view account, std::string_view password,
                                        std::chrono::system_clock::time_point deviceTime);

/// The digest of the token, in base64: SHA-1 over the random bytes, the time's text and the password (OASIS
/// Web Services Security UsernameToken Profile 1.0, section 3.1).
[[nodiscard]] std::string passwordDigest(std::string_view nonce, std::string_view created,
                                         std::string_view password);

} // namespace sdk::onvif
