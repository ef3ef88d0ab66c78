// Asks Pango about a window of the text.
#include "desktop/drawing/text_boundaries.hpp"

#include "desktop/drawing/passage.hpp"
#include "desktop/surrogates.hpp"

#include <algorithm>
#include <iterator>

namespace desktop {
namespace {

constexpr std::size_t reach = 128;

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
    [[nodiscard]] std::size_t start() const { return start_; }
    [[nodiscard]] std::size_t end() const { return start_ + near_.size(); }
    [[nodiscard]] const Passage& passage() const { return passage_; }

private:
    std::size_t start_;
    std::u16string_view near_;
    Passage passage_;
};

/// A carriage return and a line feed are one line break.
bool isInsideALineBreak(std::u16string_view text, std::size_t unit) {
    return unit > 0 && unit < text.size() && text[unit - 1] == u'\r' && text[unit] == u'\n';
}

/// The ends of the characters at the beginning of the text. One that may go on behind what is
/// looked at is left for the next time, unless it is the only one.
std::vector<std::size_t> firstEnds(std::u16string_view text) {
    const Window window(text, 0);
    std::vector<std::size_t> ends = window.passage().caretPositions();
    std::erase_if(ends,
                  [text](std::size_t end) { return end == 0 || isInsideALineBreak(text, end); });
    constexpr std::size_t sure = reach / 2;
    if (text.size() > reach && !ends.empty()) {
        ends.erase(std::max(ends.begin() + 1, std::ranges::upper_bound(ends, sure)), ends.end());
    }
    return ends;
}

} // namespace

std::vector<std::size_t> composedCharacterEnds(std::u16string_view text) {
    std::vector<std::size_t> ends;
    for (std::size_t start = 0; start < text.size(); start = ends.back()) {
        const auto next = firstEnds(text.substr(start));
        std::ranges::transform(next, std::back_inserter(ends),
                               [start](std::size_t end) { return start + end; });
        if (next.empty()) {
            ends.push_back(start + 1);
        }
    }
    return ends;
}

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
    character.start -= isInsideALineBreak(text, character.start) ? 1U : 0U;
    character.end += isInsideALineBreak(text, character.end) ? 1U : 0U;
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

std::size_t wordEndAfter(std::u16string_view text, std::size_t unit) {
    while (unit < text.size()) {
        const Window window(text, unit);
        for (const Stretch word : window.passage().words()) {
            if (window.moved(word).end > unit) {
                return window.moved(word).end;
            }
        }
        unit = window.end();
    }
    return text.size();
}

std::size_t wordStartBefore(std::u16string_view text, std::size_t unit) {
    unit = std::min(unit, text.size());
    while (unit > 0) {
        const Window window(text, unit);
        const auto words = window.passage().words();
        const auto word = std::find_if(words.rbegin(), words.rend(), [&](Stretch each) {
            return window.moved(each).start < unit;
        });
        if (word != words.rend()) {
            return window.moved(*word).start;
        }
        unit = window.start();
    }
    return 0;
}

} // namespace desktop
