// The names of the channels of the logged-in device.
#pragma once

#include "device/dh/session/configsession.h"

#include <QHash>
#include <QVariantList>

#include <optional>

/// Reads and writes one name at a time; nothing is kept but how the last write to each channel ended. Blocks
/// for the waits of the library. One thread.
class ChannelNames
{
public:
    /// Channels beyond are not asked for, however many a device tells of.
    static constexpr int maximumChannels = 1024;

    static constexpr int refused = 999; ///< by the device

    /// Turns to a new session.
    void begin(const ConfigSession &session);

    /// The name of a channel (from 0); null when the device does not tell it.
    [[nodiscard]] QVariant name(int channel);

    /// The names of the first `count` channels, as name() gives them. When the device is away, those that
    /// were not asked for are null.
    [[nodiscard]] QVariantList names(int count);

    /// Whether the last reading ended because the device did not answer.
    [[nodiscard]] bool isDeviceAway() const { return m_isDeviceAway; }

    /// Writes the name of a channel. A name of more bytes than the item holds is cut at a letter's edge.
    /// Returns 0, `refused`, or the result of a device that is away.
    int write(int channel, const QString &name);

    /// Takes `result`, which is not 0, as that of a write that was not made.
    void noteFailure(int channel, int result);

    /// Ends a saving, that is the writes since the last one. False when there were none.
    bool endSaving();

    /// How the last saving that has ended went: 0 when the device took every name, else the result of the
    /// last write that failed; -1 when there was none.
    [[nodiscard]] int savingResult() const { return m_savingResult; }

    /// How the last write to a channel ended; -1 when there was none.
    [[nodiscard]] int result(int channel) const { return m_results.value(channel, -1); }

private:
    ConfigSession m_session;
    QHash<int, int> m_results;   ///< by channel
    std::optional<int> m_saving; ///< what has come of the writes since the last saving
    int m_savingResult = -1;
    bool m_isDeviceAway = false;
};
