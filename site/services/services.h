// The services that devices have, and their operations.
#pragma once

#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// The operations of the service with that prefix; none for a service that the device does not have.
[[nodiscard]] ServiceOperations operationsOf(std::string_view prefix, const DeviceManner &manner);

/// One service of a device.
struct ServiceDescription
{
    const char *prefix; ///< as in soap/namespaces.h: "tds"
    const char *path;   ///< of its URL: "/onvif/media_service"
    int majorVersion;
    int minorVersion;
};

[[nodiscard]] std::vector<ServiceDescription> servicesOf(const DeviceManner &manner);

/// True if the path is that of a service.
[[nodiscard]] bool isServicePath(const QByteArray &path);

// The operations of each service.
[[nodiscard]] ServiceOperations deviceOperations();
[[nodiscard]] ServiceOperations mediaOperations();
[[nodiscard]] ServiceOperations media2Operations();
[[nodiscard]] ServiceOperations imagingOperations();
[[nodiscard]] ServiceOperations deviceIoOperations();

} // namespace site
