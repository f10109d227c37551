// Search responses for tests.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/searchblocks.h"

#include <QString>

#include <string>

struct AnswerTexts
{
    std::string address = "192.168.1.64";
    std::string mac = "02:1a:c5:00:40:17";
    std::string type = "IPC";
    std::string name = "东门";
    sdk::InitialisationBits state = sdk::InitialisationBits::Initialised;
    int ipVersion = 4;
    int port = 37777;
    std::string uuid = {};
};

inline sdk::SearchAnswer searchAnswer(const AnswerTexts &texts)
{
    sdk::SearchAnswer answer{};
    answer.size = sizeof(answer);
    answer.device.ipVersion = texts.ipVersion;
    answer.device.port = texts.port;
    answer.device.httpPort = 80;
    answer.device.initialisationState = static_cast<std::uint8_t>(texts.state);
    sdk::setBlockText(answer.device.address, texts.address);
    sdk::setBlockText(answer.device.mac, texts.mac);
    sdk::setBlockText(answer.device.uuid, texts.uuid);
    sdk::setBlockText(answer.device.deviceType, texts.type);
    sdk::setBlockText(answer.device.deviceName, texts.name);
    sdk::setBlockText(answer.device.detailModel, "B-2230-IR");
    sdk::setBlockText(answer.device.softwareVersion, "2.840.1");
    return answer;
}

/// "02:1a:c5:00:00:2a" for 42.
inline std::string numberedMac(int number)
{
    return QStringLiteral("02:1a:c5:%1:%2:%3")
        .arg(number >> 16 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(number >> 8 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(number & 0xFF, 2, 16, QLatin1Char('0'))
        .toStdString();
}
