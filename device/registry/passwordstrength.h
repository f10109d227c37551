#pragma once

#include <QString>

/// Strength of a password: how many of three kinds of characters it holds, digits, letters (a capital and a
/// small one are one kind) and characters that belong to no word. The underscore belongs to a word and counts
/// as nothing. 0 for an empty password; its length plays no part.
[[nodiscard]] int passwordStrength(const QString &password);
