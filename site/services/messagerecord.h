// Writes the messages of services to files for later checks.
#pragma once

#include "site/http/httpexchange.h"

namespace site {

/// Writes one exchange to two files in `folder`, which must exist: "00000001-02-1a-c5-00-40-25-request.xml"
/// and "...-response.xml". The name has the number of the exchange, from 1 at the start of the process, and
/// the MAC of the device. `request` and `response` are the bodies. Existing files are replaced. A failure is
/// logged. Thread-safe.
void recordExchange(const QString &folder, const HttpReceiver &receiver, const QByteArray &request,
                    const QByteArray &response);

} // namespace site
