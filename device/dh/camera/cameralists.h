// Lists of choices of the image page.
#pragma once

#include "device/dh/encode/valuetables.h"

#include <QStringList>

#include <optional>

/// The choices that a camera supports: the names whose bit is set in a mask, in the order of the values.
/// Values past the end of the names are left out. A page uses indexes of this list.
class OfferedValues
{
public:
    /// `names` by value; bit n of `mask` is value n.
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

/// Translated names by value.
namespace CameraNames {
[[nodiscard]] QStringList antiFlickerTypes();
[[nodiscard]] QStringList exposureTypes();
[[nodiscard]] QStringList whiteBalanceTypes();
[[nodiscard]] QStringList dayNightTypes();
[[nodiscard]] QStringList defogModes();
[[nodiscard]] QStringList lightControls();
[[nodiscard]] QStringList mixedLights();
} // namespace CameraNames
