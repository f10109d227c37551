// Responses of devices to a search, for tests.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/searchblocks.h"

#include <QString>

#include <string>

/// The values of a response that tests set; the others are constant.
struct ResponseTexts
{
    std::string address = "192.168.1.64";
    std::string mac = "02:1a:c5:00:40:17";
    std::string type = "IPC";
    std::string name = "东门";
    sdk::InitialisationBits state = sdk::InitialisationBits::Initialised;
    int ipVersion = 4; ///< 4 or 6, that of `address`
    int port = 37777;
    std::string uuid = {}; ///< empty: the device has none
};

/// The block that the network library delivers for a device with these values.
inline sdk::SearchResponse searchResponse(const ResponseTexts &texts)
{
    sdk::SearchResponse response{};
    response.size = sizeof(response);
    response.device.ipVersion = texts.ipVersion;
    response.device.port = texts.port;
    response.device.httpPort = 80;
    response.device.initialisationState = static_cast<std::uint8_t>(texts.state);
    sdk::setBlockText(response.device.address, texts.address);
    sdk::setBlockText(response.device.mac, texts.mac);
    sdk::setBlockText(response.device.uuid, texts.uuid);
    sdk::setBlockText(response.device.deviceType, texts.type);
    sdk::setBlockText(response.device.deviceName, texts.name);
    sdk::setBlockText(response.device.detailModel, "B-2230-IR");
    sdk::setBlockText(response.device.softwareVersion, "2.840.1");
    return response;
}

/// The MAC with this number in its last three bytes: "02:1a:c5:00:00:2a" for 42.
inline std::string numberedMac(int number)
{
    return QStringLiteral("02:1a:c5:%1:%2:%3")
        .arg(number >> 16 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(number >> 8 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(number & 0xFF, 2, 16, QLatin1Char('0'))
        .toStdString();
}
