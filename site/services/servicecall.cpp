#include "site/services/servicecall.h"

#include "site/deviceidentity.h"

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
                              [&](sdk::demo::SceneDevice &changed, const sdk::demo::DeviceAddresses &) {
                                  error = change(changed);
                              });
    return error;
}

} // namespace site
