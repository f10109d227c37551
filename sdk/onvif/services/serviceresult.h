// The result of an operation of a service.
#pragma once

#include "sdk/neterror.h"
#include "sdk/onvif/soap/soapclient.h"

#include <string>
#include <utility>

namespace sdk::onvif {

/// What an operation has returned, or why it failed.
template<typename Value>
struct ServiceResult
{
    NetError error = NetError::None;
    std::string reason = {}; ///< the text of the device's fault, for a log
    Value value = {};

    [[nodiscard]] bool isOk() const { return error == NetError::None; }
};

/// For operations that return nothing.
struct Nothing
{
};
using ServiceOutcome = ServiceResult<Nothing>;

/// Takes the error of an answer, or the value that `read` makes of its content. An answer of another
/// operation counts as a mismatch of the protocol.
template<typename Read>
[[nodiscard]] auto resultOf(const SoapAnswer &answer, std::string_view uri, std::string_view expected,
                            Read read) -> ServiceResult<decltype(read(answer.content))>
{
    if (!answer.isOk())
        return {.error = answer.error, .reason = answer.reason};
    if (!answer.content.is(uri, expected))
        return {.error = NetError::ProtocolMismatch};
    return {.value = read(answer.content)};
}

} // namespace sdk::onvif
