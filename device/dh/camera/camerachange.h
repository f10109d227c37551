// Conversion of a changed value of the image page to a field of a camera item.
#pragma once

#include "device/dh/camera/cameravalues.h"
#include "device/registry/camerakeys.h"

#include <span>

/// One change by the user. All references must outlive it.
struct CameraChange
{
    const QString &subKey;
    const QVariant &value;
    const ValueTables &tables;
    CameraState &state;

    [[nodiscard]] bool is(QLatin1StringView name) const { return subKey == name; }
    /// Whether the change is of the main value of a group.
    [[nodiscard]] bool isPlain() const { return subKey.isEmpty() || is(CameraSetting::value); }
    [[nodiscard]] CameraOptions options() const { return {tables, state.capabilities}; }

    // Each of these functions converts `value` and writes it to `field`. It returns false, and leaves `field`
    // unchanged, if `value` is invalid. number() clamps to `range`, slider() to usableRange(). choice() takes
    // an index of `offered` and writes the value at it. oneOf() accepts only the listed numbers.
    [[nodiscard]] bool number(sdk::ValueRange range, std::int32_t &field) const;
    [[nodiscard]] bool slider(sdk::ValueRange reported, std::int32_t &field) const;
    [[nodiscard]] bool choice(const OfferedValues &offered, std::int32_t &field) const;
    [[nodiscard]] bool oneOf(std::span<const int> numbers, std::int32_t &field) const;
    [[nodiscard]] bool shutter(float &field) const; ///< exposure time in milliseconds, 0 to 100000
};
