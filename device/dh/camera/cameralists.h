// Lists of choices of the image page.
#pragma once

#include "device/dh/encode/valuetables.h"

#include <QStringList>

#include <optional>

/// The choices that a camera supports: the names whose bit is set in a mask, in the order of their values. A
/// value without a name is left out. The page names a choice by its index in names(); the device by its
/// value.
class OfferedValues
{
public:
    /// `names[n]` is the name of the value n, and bit n of `mask` says whether the camera supports it.
    OfferedValues(const QStringList &names, std::uint32_t mask);

    [[nodiscard]] const QStringList &names() const { return m_names; }

    /// The index of a value; -1 if it is not offered.
    [[nodiscard]] int indexOf(int value) const { return static_cast<int>(m_values.indexOf(value)); }

    /// The value at an index; nullopt if the index is out of range.
    [[nodiscard]] std::optional<int> valueAt(int index) const;

private:
    QStringList m_names;
    QList<int> m_values;
};

/// Names in the language at the time of the call; the index is the value in the items.
namespace CameraNames {
[[nodiscard]] QStringList antiFlickerTypes();
[[nodiscard]] QStringList exposureTypes();
[[nodiscard]] QStringList whiteBalanceTypes();
[[nodiscard]] QStringList dayNightTypes();
[[nodiscard]] QStringList defogModes();
[[nodiscard]] QStringList lightControls();
[[nodiscard]] QStringList mixedLights();
} // namespace CameraNames
