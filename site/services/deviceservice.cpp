// The operations of the device service.
#include "site/services/devicedescription.h"
#include "site/services/devicenetwork.h"
#include "site/services/devicesystem.h"
#include "site/services/devicetime.h"
#include "site/services/deviceusers.h"
#include "site/services/services.h"

#include <array>

namespace site {

ServiceOperations deviceOperations()
{
    static constexpr std::array operations = {
        ServiceOperation{"GetSystemDateAndTime", Access::BeforeLogin, getSystemDateAndTime},
        ServiceOperation{"GetServices", Access::BeforeLogin, getServices},
        ServiceOperation{"GetServiceCapabilities", Access::BeforeLogin, getDeviceServiceCapabilities},
        ServiceOperation{"GetCapabilities", Access::BeforeLogin, getCapabilities},
        ServiceOperation{"GetWsdlUrl", Access::BeforeLogin, getWsdlUrl},
        ServiceOperation{"GetHostname", Access::BeforeLogin, getHostname},
        ServiceOperation{"GetDeviceInformation", Access::ReadSystem, getDeviceInformation},
        ServiceOperation{"SetSystemDateAndTime", Access::WriteSystem, setSystemDateAndTime},
        ServiceOperation{"GetNTP", Access::ReadSystem, getNtp},
        ServiceOperation{"SetNTP", Access::WriteSystem, setNtp},
        ServiceOperation{"GetScopes", Access::ReadSystem, getScopes},
        ServiceOperation{"SetScopes", Access::WriteSystem, setScopes},
        ServiceOperation{"GetUsers", Access::FirstUser, getUsers},
        ServiceOperation{"CreateUsers", Access::FirstUser, createUsers},
        ServiceOperation{"SetUser", Access::WriteSystem, setUser},
        ServiceOperation{"DeleteUsers", Access::WriteSystem, deleteUsers},
        ServiceOperation{"GetNetworkInterfaces", Access::ReadSystem, getNetworkInterfaces},
        ServiceOperation{"SetNetworkInterfaces", Access::WriteSystem, setNetworkInterfaces},
        ServiceOperation{"GetNetworkDefaultGateway", Access::ReadSystem, getNetworkDefaultGateway},
        ServiceOperation{"SetNetworkDefaultGateway", Access::WriteSystem, setNetworkDefaultGateway},
        ServiceOperation{"GetNetworkProtocols", Access::ReadSystem, getNetworkProtocols},
        ServiceOperation{"SystemReboot", Access::WriteSystem, systemReboot},
        ServiceOperation{"SetSystemFactoryDefault", Access::WriteSystem, setSystemFactoryDefault},
        ServiceOperation{"StartFirmwareUpgrade", Access::WriteSystem, startFirmwareUpgrade},
        ServiceOperation{"GetDNS", Access::ReadSystem, getDns},
    };
    return operations;
}

} // namespace site
