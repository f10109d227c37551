#include "site/services/servicecall.h"

#include "site/deviceidentity.h"

#include <utility>

namespace site {

QString ServiceCall::root() const
{
    return serviceRoot(receiver.address, receiver.port, receiver.isSecure);
}

sdk::NetError
ServiceCall::change(const std::function<sdk::NetError(sdk::demo::SceneDevice &device)> &change) const
{
    sdk::NetError error = sdk::NetError::ConnectTimeout;
    context.site.changeDevice(device.mac,
                              [&](sdk::demo::SceneDevice &present, const sdk::demo::DeviceAddresses &) {
                                  sdk::demo::SceneDevice changed = present;
                                  error = change(changed);
                                  if (error == sdk::NetError::None)
                                      present = std::move(changed);
                              });
    return error;
}

} // namespace site
