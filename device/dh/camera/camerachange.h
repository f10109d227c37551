// Conversion of a changed value of the image page to a field of a camera item (a block of settings that the
// device reads and writes together).
#pragma once

#include "device/dh/camera/cameravalues.h"
#include "device/registry/camerakeys.h"

#include <span>

/// One change by the user, converted to a field of `state`. A temporary object: all references must outlive
/// it.
struct CameraChange
{
    const QString &subKey; ///< a CameraSetting; empty for the main value of a group
    const QVariant &value; ///< as set by QML
    const ValueTables &tables;
    CameraState &state;

    [[nodiscard]] bool is(QLatin1StringView name) const { return subKey == name; }
    /// Whether the change is of the main value of a group.
    [[nodiscard]] bool isPlain() const { return subKey.isEmpty() || is(CameraSetting::value); }
    [[nodiscard]] CameraOptions options() const { return {tables, state.capabilities}; }

    // Each of these functions converts `value` and writes it to `field`. It returns false, and leaves `field`
    // unchanged, if `value` is not a number or is not allowed.

    /// Rounds, and clamps to `range`.
    [[nodiscard]] bool number(sdk::ValueRange range, std::int32_t &field) const;
    /// number() with usableRange(reported).
    [[nodiscard]] bool slider(sdk::ValueRange reported, std::int32_t &field) const;
    /// `value` is an index of `offered`; writes the value at it. Any other index is not allowed.
    [[nodiscard]] bool choice(const OfferedValues &offered, std::int32_t &field) const;
    /// Allows only the listed numbers.
    [[nodiscard]] bool oneOf(std::span<const int> numbers, std::int32_t &field) const;
    /// Allows an exposure time of 0 to 100000 milliseconds; it is not clamped.
    [[nodiscard]] bool shutter(float &field) const;
};
