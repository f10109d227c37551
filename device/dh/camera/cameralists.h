// The lists that the camera image page offers, each as far as the camera knows its values.
#pragma once

#include "device/dh/encode/valuetables.h"

#include <QStringList>

#include <optional>

/// The names of the values whose bits are set, in the order of the values. A page sees places in it; what has
/// no name is not offered.
class OfferedValues
{
public:
    OfferedValues(const QStringList &names, std::uint32_t mask);

    [[nodiscard]] const QStringList &names() const { return m_names; }

    /// The place of a value, -1 when it is not offered.
    [[nodiscard]] int placeOf(int value) const { return static_cast<int>(m_values.indexOf(value)); }

    /// The value at a place; nothing for a place outside.
    [[nodiscard]] std::optional<int> valueAt(int place) const;

private:
    QStringList m_names;
    QList<int> m_values;
};

/// Translated names, by value.
namespace CameraNames {
[[nodiscard]] QStringList antiFlickerTypes();
[[nodiscard]] QStringList exposureTypes();
[[nodiscard]] QStringList whiteBalanceTypes();
[[nodiscard]] QStringList dayNightTypes();
[[nodiscard]] QStringList defogModes();
[[nodiscard]] QStringList lightControls();
[[nodiscard]] QStringList mixedLights();
} // namespace CameraNames
