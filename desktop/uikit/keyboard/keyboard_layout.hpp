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

/// What the keys have to fit into, in points.
struct KeyboardShape {
    double width = 0;
    bool isLow = false; ///< as on a phone that is held sideways
    double sides = 0;   ///< kept free on the left and on the right
};

/// Height in points of a phone's keyboard: with or without room for the home indicator.
[[nodiscard]] double keyboardHeight(bool isLow, bool hasHomeIndicator);

/// The keys in rows from the top left, in points. Empty when the width for them is not a positive
/// number of some size.
[[nodiscard]] std::vector<Key> keyboardKeys(const KeyboardShape& shape, KeyPage page, bool capitals,
                                            const std::u16string& enterLabel);

/// The key at or nearest to a point in the keys' rows; null above and below them, or when there
/// are none.
[[nodiscard]] const Key* keyAt(const std::vector<Key>& keys, Point point);

} // namespace desktop
