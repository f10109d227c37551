// One changed value of the camera image page, and how it gets into a field.
#pragma once

#include "device/dh/camera/cameravalues.h"

#include <span>

/// Where a change stands and what is to become of it. All that it refers to must outlive it.
struct CameraChange
{
    const QString &subKey;
    const QVariant &value;
    const ValueTables &tables;
    CameraState &state;

    [[nodiscard]] bool is(const char *name) const { return subKey == QLatin1String(name); }
    [[nodiscard]] bool isPlain() const { return subKey.isEmpty() || is("value"); }
    [[nodiscard]] CameraLists lists() const { return {tables, state.capabilities}; }

    /// Each of these returns false, with the field unchanged, for a value that is none.
    /// A number is brought into its range, a slider's into the one that the device told.
    [[nodiscard]] bool number(sdk::ValueRange range, std::int32_t &field) const;
    [[nodiscard]] bool slider(sdk::ValueRange told, std::int32_t &field) const;
    [[nodiscard]] bool choice(const OfferedValues &offered, std::int32_t &field) const;
    [[nodiscard]] bool oneOf(std::span<const int> numbers, std::int32_t &field) const;
    [[nodiscard]] bool shutter(float &field) const; ///< in milliseconds
};
