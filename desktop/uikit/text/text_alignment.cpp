// From the platform's numbers.
#include "desktop/uikit/text/text_alignment.hpp"

#include <array>

namespace desktop {
namespace {

// In the order of the platform's numbers.
constexpr std::array alignments{TextAlignment::left, TextAlignment::center, TextAlignment::right,
                                TextAlignment::justified, TextAlignment::natural};
constexpr std::array lineBreakModes{LineBreakMode::wordWrapping,   LineBreakMode::characterWrapping,
                                    LineBreakMode::clipping,       LineBreakMode::truncatingHead,
                                    LineBreakMode::truncatingTail, LineBreakMode::truncatingMiddle};

/// The element that the platform's number stands for; the fallback for a number that is none.
template <class Value, std::size_t Count, class Number>
Value named(const std::array<Value, Count>& values, Number number, Value fallback) {
    const auto index = static_cast<std::size_t>(number);
    return index < Count ? values[index] : fallback;
}

} // namespace

TextAlignment drawnAlignment(ui::TextAlignment alignment) {
    return named(alignments, alignment, TextAlignment::natural);
}

LineBreakMode drawnLineBreakMode(ui::LineBreakMode mode) {
    return named(lineBreakModes, mode, LineBreakMode::truncatingTail);
}

} // namespace desktop
