// The encode settings of the logged-in device.
#pragma once

#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodevalues.h"

#include <QStringList>

#include <optional>

/// The encode settings of one channel of the current session's device: read() reads them from the device,
/// setValue() changes them here, and confirm() writes them when the user confirms. A value type; a copy has
/// its own values and works on the same device. Blocks for the timeouts of the device library. Not
/// thread-safe.
class EncodeConfig
{
public:
    /// `tables` must outlive this object and its copies.
    explicit EncodeConfig(const ValueTables &tables);

    /// Sets the session and clears all values. Sends no request.
    void begin(const ConfigSession &session);

    /// Reads the settings of the selected channel and kind of stream, and the choices for them. Returns 0 on
    /// success, configurationUnreadable (1), capabilitiesUnknown (10), or an error of the device library. If
    /// the device refuses the configuration or does not respond to its request, the earlier values stay. If a
    /// later request fails, its values count as not read and cannot be set.
    [[nodiscard]] int read(const ChannelChoice &channels);

    /// Marks all items as not read, after another channel or kind of stream was selected; read() reads them.
    /// The lists of choices stay.
    void markItemsUnread();

    /// A value by key, see EncodeValues::value(); sends no request. Additional keys:
    ///
    ///  - "takenItems": indexes of the items that are not unsaved any more. After confirm(): those that the
    ///    device accepted. After setValue(): the item that was written immediately to the selected channel
    ///    and accepted, if any. Empty after read().
    ///  - "unreadItems" and "unreadIndexes": names and indexes of the items that the device has but that
    ///    were not read
    ///
    /// Indexes 0 to 3 are video format, video profile, audio compression and audio format of the main stream,
    /// 4 to 7 those of the sub stream.
    [[nodiscard]] QVariant value(const QString &key, const ChannelChoice &channels) const;

    /// Result of a write.
    struct Outcome
    {
        QString notWritten; ///< names of the items that were not written, each with "\n"; empty for none
        int result = 0; ///< 0, the library's error if the device stopped responding, or a result of read()
    };

    /// Changes a value; see EncodeValues::setValue(). An invalid value, and a value whose item was not read,
    /// is logged and ignored, with an empty outcome. Only the resolution of the sub stream is written
    /// immediately, to the channel of the image page, which devices expect. If the device refuses it, all 64
    /// entries of ValueTables::BitRateSteps are tried as the bit rate, of which the first accepted one stays.
    /// The choices are then read again, unless the device does not respond. All other values are written by
    /// confirm().
    Outcome setValue(const QString &key, const QVariant &value, const ChannelChoice &channels);

    /// Writes all items that were read, changed or not. `notWritten` lists those that the device refused,
    /// those that were not sent since the device stopped responding, and those that were not read. Items
    /// that the device does not have are neither written nor listed. If the channel was not read, nothing is
    /// written and all items are listed.
    [[nodiscard]] Outcome confirm(const ChannelChoice &channels);

    /// The state of the channel, with changes that confirm() has not written; nullopt if it was not read.
    [[nodiscard]] const std::optional<EncodeState> &state() const { return m_state; }

    /// Names of the eight items in the user's language, by the indexes stated at value().
    [[nodiscard]] static QStringList itemNames();

private:
    /// Writes the sub stream's size; tries other bit rates if it is refused. Returns whether it was accepted.
    [[nodiscard]] bool writeSubResolution(int channel);
    [[nodiscard]] QString linesOf(const QList<int> &items) const;

    const EncodeValues m_values;
    const ValueTables &m_tables;
    ConfigSession m_session;
    std::optional<EncodeState> m_state;
    QVariantList m_takenItems;
};
