// The encode settings of the logged-in device.
#pragma once

#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodevalues.h"

#include <QStringList>

#include <optional>

/// The encode settings of one channel of the current session's device: read from the device, changed by the
/// page, and written when the user confirms. A value type; a copy works on the same device. Blocks for the
/// timeouts of the device library. Not thread-safe.
class EncodeConfig
{
public:
    /// `tables` must outlive this object and its copies.
    explicit EncodeConfig(const ValueTables &tables);

    /// Sets the session and clears all values.
    void begin(const ConfigSession &session);

    /// Reads the selected channel and kind of stream. Returns 0 on success, configurationUnreadable (1),
    /// capabilitiesUnknown (10), or an error of the device library.
    [[nodiscard]] int read(const ChannelChoice &channels);

    /// Marks all items as not read, after another channel or kind of stream was selected; read() reads them.
    /// The lists of choices stay.
    void markItemsUnread();

    /// A value by key, see EncodeValues::value(). Additional keys: "takenItems" (indexes of the items that
    /// the device accepted in the last setValue() or confirm(), with confirm() also of those that it does not
    /// have; empty after read()), "unreadItems" and "unreadIndexes" (names and indexes of the items that the
    /// device has but that were not read). Indexes are those of writeEncodeItems().
    [[nodiscard]] QVariant value(const QString &key, const ChannelChoice &channels) const;

    /// Result of a write.
    struct Outcome
    {
        QString notWritten; ///< a line, with its end, for each item that was not written; empty without one
        int result = 0; ///< 0, the library's error if the device stopped responding, or a result of read()
    };

    /// Changes a value. The resolution of the sub stream is written immediately, to the channel of the image
    /// page, which devices expect; all other values are written by confirm(). An invalid value is logged and
    /// ignored.
    Outcome setValue(const QString &key, const QVariant &value, const ChannelChoice &channels);

    /// Writes the items that were read. `notWritten` lists those that failed or were not read. Items that the
    /// device does not have are neither written nor listed.
    [[nodiscard]] Outcome confirm(const ChannelChoice &channels);

    /// The state of the channel; nullopt if it was not read.
    [[nodiscard]] const std::optional<EncodeState> &state() const { return m_state; }

    /// Names of the items in the user's language, by the indexes of writeEncodeItems().
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
