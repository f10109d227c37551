// SOAP faults.
#pragma once

#include "site/soap/xmlwriting.h"

#include <QString>

namespace site {

struct SoapFault
{
    bool isSender = true; ///< fault code Sender, otherwise Receiver
    const char *subcode = "ter:InvalidArgVal";
    const char *detail = nullptr; ///< the subcode below it: "ter:NoProfile"
    QString reason;

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

void writeFault(SoapMessage &message, const SoapFault &fault);

} // namespace site
