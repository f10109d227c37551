// Channel names of the logged-in device.
#pragma once

#include "device/dh/session/configsession.h"

#include <QHash>
#include <QVariantList>

#include <optional>

/// Reads and writes channel names of the device, one request for each; channels are counted from 0. The
/// names are not stored here, only the results of writes. Blocks for the timeouts of the device library. Not
/// thread-safe.
class ChannelNames
{
public:
    /// Maximum number of channels of a device; further ones are ignored.
    static constexpr int maximumChannels = 1024;

    static constexpr int refused = 999; ///< result of a write: the device refused the name

    /// Sets the session and clears the results.
    void begin(const ConfigSession &session);

    /// Requests the name of a channel. Returns it without surrounding spaces; null if the device refuses the
    /// request or does not respond.
    [[nodiscard]] QVariant name(int channel);

    /// The names of the first `count` channels, at most maximumChannels, null as by name(). If the device
    /// stops responding, no further name is requested and the remaining ones are null.
    [[nodiscard]] QVariantList names(int count);

    /// Whether the last name() or names() failed because the device did not respond or no longer accepts the
    /// session.
    [[nodiscard]] bool isDeviceAway() const { return m_isDeviceAway; }

    /// Writes the name of a channel, and stores and returns the result: 0, `refused`, or deviceAway if the
    /// device did not respond or no longer accepts the session. A name that is too long for the item is
    /// truncated at a character boundary.
    int write(int channel, const QString &name);

    /// Stores `result` (not 0) for a write that was not sent. It counts in the save like a failed write.
    void noteFailure(int channel, int result);

    /// Ends a save, which consists of the writes since the previous endSaving(). Returns false if there were
    /// none.
    bool endSaving();

    /// Result of the last save that has ended: 0 if the device accepted all names, otherwise the result of
    /// the last failed write; -1 if there was none.
    [[nodiscard]] int savingResult() const { return m_savingResult; }

    /// Result of the last write to a channel; -1 if there was none.
    [[nodiscard]] int result(int channel) const { return m_results.value(channel, -1); }

private:
    ConfigSession m_session;
    QHash<int, int> m_results;   ///< by channel
    std::optional<int> m_saving; ///< result of the current save; nullopt before its first write
    int m_savingResult = -1;
    bool m_isDeviceAway = false;
};
