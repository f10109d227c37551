// The SOAP services that devices have, and their operations.
#pragma once

#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// The operations of the service with that prefix of soap/namespaces.h; empty for a service that the device
/// does not have. They are valid for the life of the process.
[[nodiscard]] ServiceOperations operationsOf(std::string_view prefix, const DeviceManner &manner);

/// One service of a device.
struct ServiceDescription
{
    const char *prefix; ///< as in soap/namespaces.h: "tds"
    const char *path;   ///< of its URL: "/onvif/media_service"
    int majorVersion;
    int minorVersion;
};

/// The services that a device of this manner has.
[[nodiscard]] std::vector<ServiceDescription> servicesOf(const DeviceManner &manner);

/// True if the path is that of a service, also of one that a device does not have.
[[nodiscard]] bool isServicePath(const QByteArray &path);

// The operations of each service: "tds", "trt", "tr2", "timg" and "tmd".
[[nodiscard]] ServiceOperations deviceOperations();
[[nodiscard]] ServiceOperations mediaOperations();
[[nodiscard]] ServiceOperations media2Operations();
[[nodiscard]] ServiceOperations imagingOperations();
[[nodiscard]] ServiceOperations deviceIoOperations();

} // namespace site
