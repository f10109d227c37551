#pragma once

#include <QString>

/// Strength of a password, 0 to 3: the number of kinds of characters that it contains. The kinds are digits,
/// letters (A to Z in both cases), and all other characters. An underscore is of no kind. The length has no
/// influence.
[[nodiscard]] int passwordStrength(const QString &password);
