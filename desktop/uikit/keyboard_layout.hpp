// Where the keys of the keyboard are, and what they do.
#pragma once

#include "desktop/drawing/geometry.hpp"

#include <string>
#include <vector>

namespace desktop {

enum class KeyRole { character, shift, erase, letters, digits, symbols, space, enter };
enum class KeyPage { letters, digits, symbols };

struct Key {
    KeyRole role = KeyRole::character;
    /// What is written on it; for a character, what it types.
    std::u16string label;
    Rectangle box;
};

/// Height in points of a phone's keyboard: with or without room for the home indicator.
[[nodiscard]] double keyboardHeight(bool hasHomeIndicator);

/// The keys in rows from the top left, in points, for a keyboard of that width. Empty when the
/// width is not a positive number of some size.
[[nodiscard]] std::vector<Key> keyboardKeys(double width, KeyPage page, bool capitals,
                                            const std::u16string& enterLabel);

/// The key at or nearest to a point in the keys' rows; null above and below them, or when there
/// are none.
[[nodiscard]] const Key* keyAt(const std::vector<Key>& keys, Point point);

} // namespace desktop
