// Reading and writing a device's configuration through one login.
#pragma once

#include "sdk/neterror.h"
#include "sdk/netlibrary.h"
#include "sdk/sdklibraries.h"

#include <chrono>
#include <vector>

/// A buffer for configuration text, ended by a zero.
using ConfigText = std::vector<char>;

/// The result of an operation that a device did not answer, of those that pass no error of the library on.
inline constexpr int deviceAway = static_cast<int>(sdk::NetError::NetworkFailure);

/// Blocks its caller for the waits of the library. Without a library, or without a login, everything fails.
class ConfigSession
{
public:
    ConfigSession() = default;

    /// `handle` is 0 for no login. The login stays its owner's.
    ConfigSession(const sdk::SdkLibraries &libraries, std::int64_t handle);

    /// Whether there is a login.
    [[nodiscard]] bool isOpen() const { return m_handle != 0; }
    [[nodiscard]] std::int64_t handle() const { return m_handle; }

    /// Wait of requests that have none of their own.
    static constexpr std::chrono::milliseconds usualWait{5000};

    /// Reads a configuration text into `text`, as long as that is. Returns 0, or the error that the call
    /// reported, which is never 0.
    [[nodiscard]] std::int32_t fetchText(const char *name, int channel, ConfigText &text,
                                         std::chrono::milliseconds wait) const;

    /// Unpacks a text into `record`. Returns false, with the record unchanged, when it cannot.
    template<typename Record>
    [[nodiscard]] bool unpack(const char *name, const ConfigText &text, Record &record) const
    {
        return unpack(name, text, &record, sizeof(record));
    }

    /// Packs `record` into `text`, as long as that is. Returns false when it cannot.
    template<typename Record>
    [[nodiscard]] bool pack(const char *name, const Record &record, ConfigText &text) const
    {
        return pack(name, &record, sizeof(record), text);
    }

    /// Packs `record` and writes it as a configuration text of up to `textSize` bytes.
    template<typename Record>
    bool write(const char *name, int channel, const Record &record, std::uint32_t textSize,
               std::chrono::milliseconds wait) const
    {
        ConfigText text(textSize);
        return pack(name, record, text) && writeText(name, channel, text, wait);
    }

    template<typename Item>
    bool readItem(std::uint32_t number, int channel, Item &item) const
    {
        return m_net && m_net->NetGetItem(m_handle, number, channel, &item, sizeof(item), usualWait);
    }

    template<typename Item>
    bool writeItem(std::uint32_t number, int channel, const Item &item) const
    {
        return m_net && m_net->NetSetItem(m_handle, number, channel, &item, sizeof(item), usualWait);
    }

    template<typename Input, typename Output>
    bool queryCapabilities(sdk::CapabilityQuery query, const Input &input, Output &output) const
    {
        return m_net && m_net->NetQueryCapabilities(m_handle, query, &input, &output, usualWait);
    }

    bool queryChannelStates(sdk::ChannelStates &states, std::chrono::milliseconds wait) const
    {
        states.size = sizeof(states);
        return m_net && m_net->NetQueryChannelStates(m_handle, states, wait);
    }

    template<typename Block>
    bool queryBlock(sdk::QueryCommand command, Block &block, std::chrono::milliseconds wait) const
    {
        std::uint32_t filled = 0;
        return m_net && m_net->NetQueryConfig(m_handle, command, 0, &block, sizeof(block), filled, wait) &&
               filled == sizeof(block);
    }

    /// The error of the failure before, on this thread.
    [[nodiscard]] std::uint32_t lastError() const;

    /// Whether the failure before means that the session is lost (isSessionLost()), and not that the device
    /// refused.
    [[nodiscard]] bool isDeviceAway() const;

private:
    bool unpack(const char *name, const ConfigText &text, void *record, std::uint32_t recordSize) const;
    bool pack(const char *name, const void *record, std::uint32_t recordSize, ConfigText &text) const;
    bool writeText(const char *name, int channel, const ConfigText &text,
                   std::chrono::milliseconds wait) const;

    std::shared_ptr<sdk::NetLibrary> m_net;
    std::shared_ptr<sdk::ConfigLibrary> m_config;
    std::int64_t m_handle = 0;
};
