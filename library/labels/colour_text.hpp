// Reads the colours that rules and preferences write as text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace wentra::labels {

/// An RGB colour; every component is from 0 to 1.
struct Colour {
    double red;
    double green;
    double blue;
    double alpha;

    bool operator==(const Colour&) const = default;
};

/// A colour text taken apart; the views are into the text that was parsed.
struct ColourText {
    /// The name of a colour, or its hexadecimal digits.
    std::u16string_view colour;
    /// The number that follows the first "-"; nothing when there is none, which means opaque.
    std::optional<std::u16string_view> alpha;
};

/// Takes "colour" or "colour-alpha" apart; what follows a second "-" is ignored.
ColourText parseColourText(std::u16string_view text);

/// The hexadecimal number at the start of UTF-16 text, after any white space and an optional "0x".
/// Ends at the first other character; 0 without a digit, the largest number on overflow.
std::uint32_t scanHexadecimal(std::u16string_view text);

/// The opaque colour 0xRRGGBB; the bits above are ignored.
Colour colourFromRgb(std::uint32_t rgb);

/// The opaque colour written as hexadecimal digits with a leading "#", or as six UTF-16 units of
/// any kind; digits are read as by `scanHexadecimal`. Nothing for other text.
std::optional<Colour> hexColour(std::u16string_view colour);

} // namespace wentra::labels
