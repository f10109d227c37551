#include "site/services/services.h"

#include "site/deviceidentity.h"

#include <algorithm>
#include <array>

namespace site {

namespace {

constexpr std::array allServices = {
    ServiceDescription{"tds", deviceServicePath, 18, 12},
    ServiceDescription{"trt", "/onvif/media_service", 2, 60},
    ServiceDescription{"tr2", "/onvif/media2_service", 18, 12},
    ServiceDescription{"timg", "/onvif/imaging_service", 18, 6},
    ServiceDescription{"tmd", "/onvif/deviceio_service", 18, 12},
};

} // namespace

std::vector<ServiceDescription> servicesOf(const DeviceManner &manner)
{
    std::vector<ServiceDescription> services(allServices.begin(), allServices.end());
    std::erase_if(services, [&manner](const ServiceDescription &service) {
        return !manner.hasMedia2 && std::string_view(service.prefix) == "tr2";
    });
    return services;
}

bool isServicePath(const QByteArray &path)
{
    return std::any_of(allServices.begin(), allServices.end(),
                       [&path](const ServiceDescription &service) { return path == service.path; });
}

ServiceOperations operationsOf(std::string_view prefix, const DeviceManner &manner)
{
    if (prefix == "tds")
        return deviceOperations();
    if (prefix == "trt")
        return mediaOperations();
    if (prefix == "tr2" && manner.hasMedia2)
        return media2Operations();
    if (prefix == "timg")
        return imagingOperations();
    if (prefix == "tmd")
        return deviceIoOperations();
    return {};
}

} // namespace site
