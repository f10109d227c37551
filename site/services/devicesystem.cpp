#include "site/services/devicesystem.h"

#include "sdk/demo/device/maintenance.h"
#include "site/services/devicenetwork.h"
#include "site/services/firmwareuploads.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

/// The time in ms between a response and the announced restart.
constexpr std::int64_t moment = 1500;

} // namespace

ServiceResult systemReboot(ServiceCall &call)
{
    const sdk::NetError error =
        call.change([&call](SceneDevice &device) { return rebootAfterResponse(device, call.now); });
    if (error != sdk::NetError::None)
        return SoapFault::prohibited(u"The device refuses to reboot"_s);
    applyPendingAddress(call);
    call.response.add("tds:Message", "Rebooting in 2 seconds");
    return std::nullopt;
}

ServiceResult setSystemFactoryDefault(ServiceCall &call)
{
    const QString kind = textAt(call.request, "tds:FactoryDefault").value_or(QString());
    if (kind != u"Hard" && kind != u"Soft")
        return SoapFault::invalid(nullptr, u"The type of reset is unknown"_s);
    const sdk::NetError error =
        call.change([&call](SceneDevice &device) { return resetToFactory(device, call.now + moment); });
    return resultOf(error, SoapFault::prohibited(u"The device refuses the reset"_s));
}

ServiceResult startFirmwareUpgrade(ServiceCall &call)
{
    const std::optional<QString> path = call.context.uploads.begin(call.device);
    if (!path)
        return SoapFault{false, "ter:Action", "ter:DeviceBusy", u"An upgrade is already running"_s};
    const FaultSetting usual = {Fault::RebootTakes, static_cast<int>(usualReboot.count())};
    const int away = call.device.fault(Fault::RebootTakes).value_or(usual).number;
    call.response.add("tds:UploadUri", call.root() + *path);
    call.response.add("tds:UploadDelay", "PT0S");
    call.response.add("tds:ExpectedDownTime", u"PT%1S"_s.arg(away));
    return std::nullopt;
}

} // namespace site
