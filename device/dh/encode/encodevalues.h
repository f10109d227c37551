// The values of the encode page by key: what a state shows, and what a changed value does to it.
#pragma once

#include "device/dh/encode/encodestate.h"
#include "device/dh/encode/valuetables.h"

#include <QVariant>

/// Keys that are not values of a state: the places of the items that the device took at the last write, and
/// the places and names of the items that were not read.
inline constexpr QLatin1StringView takenItemsKey("takenItems");
inline constexpr QLatin1StringView unreadPlacesKey("unreadPlaces");
inline constexpr QLatin1StringView unreadItemsKey("unreadItems");

/// Keys of the sub stream begin with "sub"; the rest of the key is that of the main stream.
class EncodeValues
{
public:
    /// `tables` must outlive this object.
    explicit EncodeValues(const ValueTables &tables) : m_tables(tables) {}

    /// Whether the encode page has this key, to read or to write.
    [[nodiscard]] static bool isKey(const QString &key);

    /// `streamType` is the kind of main stream, 0 to 2. Invalid for a key that is not read, and for a value
    /// of an item that was not read. "bitRate" is the bit rate in kbit/s, also of one that "curBitStream" has
    /// no place for.
    [[nodiscard]] QVariant value(const QString &key, const EncodeState &state, int streamType) const;

    /// Changes the state, but not the device. Returns false, with the state unchanged, when the value is none
    /// that the key can have, and when its item was not read. An audio format that cannot have the current
    /// sampling frequency changes that as well.
    bool setValue(const QString &key, const QVariant &value, EncodeState &state, int streamType) const;

private:
    [[nodiscard]] QVariant streamValue(const QString &field, bool isSub, const EncodeItems &items,
                                       const sdk::EncodeCapabilityBlock &block) const;
    [[nodiscard]] QVariant listValue(const QString &field, bool isSub, const EncodeItems &items,
                                     const sdk::EncodeCapabilityBlock &block) const;
    void setAudioCompression(const QString &name, EncodeItems &items,
                             const sdk::EncodeCapabilityBlock &block) const;
    [[nodiscard]] bool setCompression(const QString &name, EncodeItems &items, EncodeState &state) const;

    const ValueTables &m_tables;
};
