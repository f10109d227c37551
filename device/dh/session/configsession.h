// Reads and writes the configuration of a device through one login.
#pragma once

#include "sdk/neterror.h"
#include "sdk/netlibrary.h"
#include "sdk/sdklibraries.h"

#include <chrono>
#include <vector>

/// Buffer for a configuration text, zero-terminated.
using ConfigText = std::vector<char>;

/// Result for a device that did not respond or no longer accepts the session, of operations that do not
/// return the library's error. It is an sdk::NetError, not a LoginResult.
inline constexpr int deviceAway = static_cast<int>(sdk::NetError::NetworkFailure);

/// Typed access to the configuration functions of the device library for one login. A configuration is a text
/// with a name such as "Network"; it is packed from and unpacked into a record, a struct of sdk/. An item is
/// a block with a number. Does not own the login: the functions fail after its logout. All functions block
/// for their timeout. Without a library or login they fail. Channels are counted from 0; -1 is the device
/// itself. Any thread.
class ConfigSession
{
public:
    ConfigSession() = default;

    /// `handle` is the login, 0 for none; the caller logs it out.
    ConfigSession(const sdk::SdkLibraries &libraries, std::int64_t handle);

    /// Whether a login exists.
    [[nodiscard]] bool isOpen() const { return m_handle != 0; }
    [[nodiscard]] std::int64_t handle() const { return m_handle; }

    /// Timeout of requests without a specific one.
    static constexpr std::chrono::milliseconds usualWait{5000};

    /// Reads a configuration text into `text`, whose size is the maximum and is unchanged. Returns 0, or the
    /// library's error, which is never 0.
    [[nodiscard]] std::int32_t fetchText(const char *name, int channel, ConfigText &text,
                                         std::chrono::milliseconds wait) const;

    /// The result of an operation whose text the configuration library cannot pack or unpack.
    static constexpr auto unusableText = static_cast<std::int32_t>(sdk::NetError::Refused);

    /// Reads a configuration text of up to `textSize` bytes and unpacks it into `record`. Returns 0, the
    /// error of the library, or unusableText. On failure, the record is unchanged.
    template<typename Record>
    [[nodiscard]] std::int32_t read(const char *name, int channel, Record &record, std::uint32_t textSize,
                                    std::chrono::milliseconds wait) const
    {
        ConfigText text(textSize);
        const std::int32_t error = fetchText(name, channel, text, wait);
        return error != 0 || unpack(name, text, record) ? error : unusableText;
    }

    /// Parses a text into `record`. Fields that the text does not contain keep their values. Returns false,
    /// and leaves the record unchanged, on failure.
    template<typename Record>
    [[nodiscard]] bool unpack(const char *name, const ConfigText &text, Record &record) const
    {
        return unpack(name, text, &record, sizeof(record));
    }

    /// Formats `record` into `text`, whose size is the maximum and is unchanged. Returns false on failure;
    /// sends nothing.
    template<typename Record>
    [[nodiscard]] bool pack(const char *name, const Record &record, ConfigText &text) const
    {
        return pack(name, &record, sizeof(record), text);
    }

    /// Writes a configuration text to the device. Returns false on failure, see lastError().
    bool writeText(const char *name, int channel, const ConfigText &text,
                   std::chrono::milliseconds wait) const;

    /// Packs `record` and writes it as a configuration text of up to `textSize` bytes. Returns false on
    /// failure; a record that cannot be packed is not sent.
    template<typename Record>
    bool write(const char *name, int channel, const Record &record, std::uint32_t textSize,
               std::chrono::milliseconds wait) const
    {
        ConfigText text(textSize);
        return pack(name, record, text) && writeText(name, channel, text, wait);
    }

    // The following functions send one request each and return false on failure, see lastError(). The caller
    // sets the size and the requested stream or mode of an item, and the sizes of `input` and `output`.

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

    /// Also fails if the response does not fill the block, which may then be changed.
    template<typename Block>
    bool queryBlock(sdk::QueryCommand command, Block &block, std::chrono::milliseconds wait) const
    {
        std::uint32_t filled = 0;
        return m_net && m_net->NetQueryConfig(m_handle, command, 0, &block, sizeof(block), filled, wait) &&
               filled == sizeof(block);
    }

    /// The library's error of the last failure on this thread; NetworkFailure if it has none or there is no
    /// library, so never 0. A record that cannot be packed, and a block that is not filled, set no error.
    [[nodiscard]] std::uint32_t lastError() const;

    /// Whether the last failure on this thread means a lost session (see isSessionLost()) and not a refusal.
    [[nodiscard]] bool isDeviceAway() const;

private:
    bool unpack(const char *name, const ConfigText &text, void *record, std::uint32_t recordSize) const;
    bool pack(const char *name, const void *record, std::uint32_t recordSize, ConfigText &text) const;

    std::shared_ptr<sdk::NetLibrary> m_net;
    std::shared_ptr<sdk::ConfigLibrary> m_config;
    std::int64_t m_handle = 0;
};
