// Asks Pango about a window of the text.
#include "desktop/drawing/text_boundaries.hpp"

#include "desktop/drawing/passage.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr std::size_t reach = 128;

bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

std::size_t notInsideAPair(std::u16string_view text, std::size_t unit) {
    const bool inside = unit > 0 && unit < text.size() && isHighSurrogate(text[unit - 1]) &&
                        isLowSurrogate(text[unit]);
    return inside ? unit - 1 : unit;
}

/// The text near a unit, shaped, and where it begins.
class Window {
public:
    Window(std::u16string_view text, std::size_t unit)
        : start_(notInsideAPair(text, unit - std::min(unit, reach))),
          near_(text.substr(start_,
                            notInsideAPair(text, std::min(text.size(), unit + reach)) - start_)),
          passage_(StyledText(near_, {}), {0, near_.size()}, std::nullopt, {}) {}

    /// A stretch of the window in terms of the whole text.
    [[nodiscard]] Stretch moved(Stretch inside) const {
        return {inside.start + start_, inside.end + start_};
    }
    [[nodiscard]] std::size_t inside(std::size_t unit) const { return unit - start_; }
    [[nodiscard]] const Passage& passage() const { return passage_; }

private:
    std::size_t start_;
    std::u16string_view near_;
    Passage passage_;
};

} // namespace

Stretch composedCharacter(std::u16string_view text, std::size_t unit) {
    if (unit >= text.size()) {
        return {text.size(), text.size()};
    }
    const Window window(text, unit);
    const auto places = window.passage().caretPositions();
    const auto end = std::ranges::upper_bound(places, window.inside(unit));
    if (end == places.begin() || end == places.end()) {
        return {unit, unit + 1};
    }
    Stretch character = window.moved({*std::prev(end), *end});
    // A carriage return and a line feed are one line break.
    const auto breaks = [text](std::size_t place) {
        return place > 0 && place < text.size() && text[place - 1] == u'\r' && text[place] == u'\n';
    };
    character.start -= breaks(character.start) ? 1U : 0U;
    character.end += breaks(character.end) ? 1U : 0U;
    return character;
}

Stretch wordAround(std::u16string_view text, std::size_t unit) {
    if (text.empty()) {
        return {};
    }
    unit = std::min(unit, text.size());
    const Window window(text, unit);
    const auto words = window.passage().words();
    const std::size_t place = window.inside(unit);
    const auto inside = std::ranges::find_if(
        words, [=](Stretch word) { return word.start <= place && place < word.end; });
    const auto before = std::ranges::find(words, place, &Stretch::end);
    if (inside != words.end()) {
        return window.moved(*inside);
    }
    if (before != words.end()) {
        return window.moved(*before);
    }
    return composedCharacter(text, std::min(unit, text.size() - 1));
}

} // namespace desktop
