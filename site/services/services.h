// The services that devices have, and their operations.
#pragma once

#include "site/services/servicecall.h"

#include <string_view>

namespace site {

/// Those of the service with that prefix; none for one that the device does not have.
[[nodiscard]] ServiceOperations operationsOf(std::string_view prefix, const DeviceManner &manner);

/// One service of a device.
struct ServiceDescription
{
    const char *prefix;
    const char *path;
    int majorVersion;
    int minorVersion;
};

[[nodiscard]] std::vector<ServiceDescription> servicesOf(const DeviceManner &manner);

/// Whether requests to services are sent to that path.
[[nodiscard]] bool isServicePath(const QByteArray &path);

// By service.
[[nodiscard]] ServiceOperations deviceOperations();
[[nodiscard]] ServiceOperations mediaOperations();
[[nodiscard]] ServiceOperations media2Operations();
[[nodiscard]] ServiceOperations imagingOperations();
[[nodiscard]] ServiceOperations deviceIoOperations();

} // namespace site
