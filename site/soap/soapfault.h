// SOAP faults.
#pragma once

#include "site/soap/xmlwriting.h"

#include <QString>

namespace site {

/// A fault, the error response of SOAP: it is sent instead of the response. Its names have the prefixes of
/// soap/namespaces.h, and are string literals.
struct SoapFault
{
    bool isSender = true; ///< fault code Sender, with HTTP status 400, or 401 with a challenge; otherwise
                          ///< Receiver, with 500
    const char *subcode = "ter:InvalidArgVal";
    const char *detail = nullptr; ///< the subcode below `subcode`: "ter:NoProfile"; null for none
    QString reason;               ///< an English sentence

    // Faults of the usual kinds: an invalid parameter (`detail` may be null), an operation that the device
    // does not have, a missing login or right, a refusal by the device, and a failure of the device.

    [[nodiscard]] static SoapFault invalid(const char *detail, const QString &reason)
    {
        return {true, "ter:InvalidArgVal", detail, reason};
    }
    [[nodiscard]] static SoapFault unknownOperation(const QString &reason)
    {
        return {false, "ter:ActionNotSupported", nullptr, reason};
    }
    [[nodiscard]] static SoapFault notAuthorized(const QString &reason)
    {
        return {true, "ter:NotAuthorized", nullptr, reason};
    }
    [[nodiscard]] static SoapFault prohibited(const QString &reason)
    {
        return {true, "ter:OperationProhibited", nullptr, reason};
    }
    [[nodiscard]] static SoapFault failed(const QString &reason)
    {
        return {false, "ter:Action", nullptr, reason};
    }
};

/// Adds the fault to the body of a message, which should be empty.
void writeFault(SoapMessage &message, const SoapFault &fault);

} // namespace site
