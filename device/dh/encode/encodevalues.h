// The values of the encode page by key.
#pragma once

#include "device/dh/encode/encodestate.h"
#include "device/dh/encode/valuetables.h"

#include <QVariant>

/// Reads and changes values of an EncodeState by the keys of EncodeKey. Sends no requests.
class EncodeValues
{
public:
    /// `tables` must outlive this object.
    explicit EncodeValues(const ValueTables &tables) : m_tables(tables) {}

    /// Whether `key` belongs to the encode page, also the additional keys of EncodeConfig::value().
    [[nodiscard]] static bool isKey(const QString &key);

    /// A value of the main stream, or of the sub stream for a key that begins with "sub", see
    /// splitEncodeKey(). `streamType` is the kind of main stream (0 to 2) and selects its capabilities.
    /// Returns an invalid value for an unknown key and for a value whose item was not read. "curBitStream" is
    /// the index of the bit rate in "bitStream", -1 if the list does not have it; "bitRate" is the bit rate
    /// in kbit/s.
    [[nodiscard]] QVariant value(const QString &key, const EncodeState &state, int streamType) const;

    /// Changes the state, not the device. Returns false, and leaves the state unchanged, for an invalid
    /// value, for a key that cannot be set, or if the item was not read. The value need not be one of the
    /// device's choices. "curBitStream" is set in kbit/s. The compression is always that of the main stream,
    /// also with the key of the sub stream; only the profile of H.264 is set for the stream of the key.
    /// Changing the audio format also changes a sampling frequency that the device does not report for it.
    bool setValue(const QString &key, const QVariant &value, EncodeState &state, int streamType) const;

private:
    [[nodiscard]] QVariant streamValue(const QString &field, bool isSub, const EncodeItems &items,
                                       const sdk::EncodeCapabilityBlock &block) const;
    [[nodiscard]] QVariant listValue(const QString &field, bool isSub, const EncodeItems &items,
                                     const sdk::EncodeCapabilityBlock &block) const;
    [[nodiscard]] bool setAudioCompression(const QString &name, EncodeItems &items,
                                           const sdk::EncodeCapabilityBlock &block) const;
    [[nodiscard]] bool setCompression(const QString &name, EncodeItems &items, EncodeState &state) const;

    const ValueTables &m_tables;
};
