// The encode configuration of the logged-in device.
#pragma once

#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodevalues.h"

#include <QStringList>

#include <optional>

/// One channel of the device of the current session: what was read of it, changed by the page, and written
/// back when the user confirms. A value; a copy works on the same device. Blocks for the waits of the
/// library. One thread at a time.
class EncodeConfig
{
public:
    /// `tables` must outlive this object and its copies.
    explicit EncodeConfig(const ValueTables &tables);

    /// Turns to a new session; nothing is known of its device yet.
    void begin(const ConfigSession &session);

    /// Reads the chosen channel and kind of stream. Returns 0; 1 when the configuration cannot be understood,
    /// 10 when the device does not tell what it can do, or else the error that reading reported.
    [[nodiscard]] int read(const ChannelChoice &channels);

    /// Another channel or kind of stream was chosen: the items that are there are not its own, and count as
    /// not read until read() has read them. The lists stay.
    void forgetItems();

    /// Beside the values of the channel "takenItems": the places, as writeEncodeItems() counts them, of the
    /// items that the device took for this channel at the last call of setValue() or confirm(), none after
    /// read(); and "unreadItems": the names of the items that were not read.
    [[nodiscard]] QVariant value(const QString &key, const ChannelChoice &channels) const;

    /// What came of a value that may have gone to the device at once.
    struct Outcome
    {
        QString notWritten; ///< a line for each item that did not reach the device; empty for none
        int result = 0; ///< the error of a device that stopped answering, or of reading as read() returns it
    };

    /// Takes a value of the page. The resolution of the sub stream goes to the device at once, everything
    /// else waits for confirm(). What the key cannot have is ignored.
    Outcome setValue(const QString &key, const QVariant &value, const ChannelChoice &channels);

    /// Writes every item that was read. The others are named as not read.
    [[nodiscard]] Outcome confirm(const ChannelChoice &channels);

    /// What is known of the channel; nothing while it has not been read.
    [[nodiscard]] const std::optional<EncodeState> &state() const { return m_state; }

    /// The names of the items that writeEncodeItems() counts.
    [[nodiscard]] static QStringList itemNames();

private:
    /// Returns whether the device took it, at whatever bit rate.
    [[nodiscard]] bool writeSubResolution(int channel);
    [[nodiscard]] QString linesOf(const QList<int> &items) const;

    const EncodeValues m_values;
    const ValueTables &m_tables;
    ConfigSession m_session;
    std::optional<EncodeState> m_state;
    QVariantList m_takenItems;
};
