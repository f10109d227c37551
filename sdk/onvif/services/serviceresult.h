// The result of an operation of a service.
#pragma once

#include "sdk/neterror.h"
#include "sdk/onvif/soap/soapclient.h"

#include <string>
#include <utility>

namespace sdk::onvif {

/// The returned value of an operation (a request to a service of a device), or its error. SoapResponse and
/// SoapClient state the errors.
template<typename Value>
struct ServiceResult
{
    NetError error = NetError::None;
    std::string reason = {}; ///< the text of the device's fault (its error response), for a log; empty
                             ///< without a fault
    Value value = {};        ///< default-constructed on an error

    [[nodiscard]] bool isOk() const { return error == NetError::None; }
};

/// The value of operations that return nothing.
struct Nothing
{
};
using ServiceOutcome = ServiceResult<Nothing>;

/// The error of `response`, or the value that `read` returns for its content. `read` is called only if the
/// content is the element `expected` in the namespace `uri`. Any other content is ProtocolMismatch.
template<typename Read>
[[nodiscard]] auto resultOf(const SoapResponse &response, std::string_view uri, std::string_view expected,
                            Read read) -> ServiceResult<decltype(read(response.content))>
{
    if (!response.isOk())
        return {.error = response.error, .reason = response.reason};
    if (!response.content.is(uri, expected))
        return {.error = NetError::ProtocolMismatch};
    return {.value = read(response.content)};
}

} // namespace sdk::onvif
