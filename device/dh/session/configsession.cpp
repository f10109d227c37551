#include "device/dh/session/configsession.h"

#include "device/registry/loginresult.h"
#include "sdk/configlibrary.h"

#include <string_view>

ConfigSession::ConfigSession(const sdk::SdkLibraries &libraries, std::int64_t handle)
    : m_net(libraries.net), m_config(libraries.config), m_handle(handle)
{
}

std::int32_t ConfigSession::fetchText(const char *name, int channel, ConfigText &text,
                                      std::chrono::milliseconds wait) const
{
    std::int32_t error = 0;
    if (m_net && m_net->NetGetNewConfig(m_handle, name, channel, text.data(),
                                        static_cast<std::uint32_t>(text.size()), error, wait))
        return 0;
    return error != 0 ? error : static_cast<std::int32_t>(lastError());
}

bool ConfigSession::unpack(const char *name, const ConfigText &text, void *record,
                           std::uint32_t recordSize) const
{
    const std::string_view whole(text.data(), text.size());
    std::uint32_t filled = 0;
    return m_config &&
           m_config->ConfigParseData(name, whole.substr(0, whole.find('\0')), record, recordSize, filled);
}

bool ConfigSession::pack(const char *name, const void *record, std::uint32_t recordSize,
                         ConfigText &text) const
{
    return m_config && m_config->ConfigPackData(name, record, recordSize, text.data(),
                                                static_cast<std::uint32_t>(text.size()));
}

bool ConfigSession::writeText(const char *name, int channel, const ConfigText &text,
                              std::chrono::milliseconds wait) const
{
    std::int32_t error = 0;
    return m_net && m_net->NetSetNewConfig(m_handle, name, channel, text.data(),
                                           static_cast<std::uint32_t>(text.size()), error, wait);
}

std::uint32_t ConfigSession::lastError() const
{
    const std::uint32_t error = m_net ? m_net->NetGetLastError() : 0;
    return error != 0 ? error : static_cast<std::uint32_t>(sdk::NetError::NetworkFailure);
}

bool ConfigSession::isDeviceAway() const
{
    return isSessionLost(lastError());
}
