// The XML namespaces (URIs) of the messages that are exchanged with devices by the open standards.
#pragma once

#include <string_view>

namespace sdk::onvif::ns {

inline constexpr std::string_view envelope = "http://www.w3.org/2003/05/soap-envelope";
/// The envelope of SOAP 1.1: some devices use it in the response to a request of SOAP 1.2.
inline constexpr std::string_view olderEnvelope = "http://schemas.xmlsoap.org/soap/envelope/";
inline constexpr std::string_view addressing = "http://schemas.xmlsoap.org/ws/2004/08/addressing";
inline constexpr std::string_view discovery = "http://schemas.xmlsoap.org/ws/2005/04/discovery";
inline constexpr std::string_view network = "http://www.onvif.org/ver10/network/wsdl";
inline constexpr std::string_view security =
    "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd";
inline constexpr std::string_view securityUtility =
    "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-utility-1.0.xsd";

inline constexpr std::string_view schema = "http://www.onvif.org/ver10/schema";
inline constexpr std::string_view device = "http://www.onvif.org/ver10/device/wsdl";
inline constexpr std::string_view media = "http://www.onvif.org/ver10/media/wsdl";
inline constexpr std::string_view media2 = "http://www.onvif.org/ver20/media/wsdl";
inline constexpr std::string_view imaging = "http://www.onvif.org/ver20/imaging/wsdl";
inline constexpr std::string_view deviceIo = "http://www.onvif.org/ver10/deviceIO/wsdl";

} // namespace sdk::onvif::ns
