// UITextPosition and UITextRange: places in a text, counted in UTF-16 units.
#pragma once

#include "bindings/foundation/range.hpp"
#include "bindings/uikit/text_input.hpp"

#include "desktop/class.hpp"

#include <algorithm>

namespace desktop {

class TextPosition : public PlatformClass<TextPosition, ui::TextPosition> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"isEqual:", &TextPosition::isEqual>(),
            objc::method<"hash", &TextPosition::unit_>(),
        };
    }

    static ui::TextPosition at(unsigned long unit) {
        const auto position = ui::TextPosition::make();
        of(position).unit_ = unit;
        return position;
    }
    /// The start of the text for nil.
    static unsigned long unitOf(ui::TextPosition position) {
        const auto known = position.as<ui::TextPosition>();
        return known ? of(known).unit_ : 0;
    }

private:
    [[nodiscard]] bool isEqual(objc::Object other) const {
        const auto position = other.as<ui::TextPosition>();
        return position && of(position).unit_ == unit_;
    }

    unsigned long unit_ = 0;
};

class TextRange : public PlatformClass<TextRange, ui::TextRange> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"start", &TextRange::start>(),
            objc::method<"end", &TextRange::end>(),
            objc::method<"isEmpty", &TextRange::isEmpty>(),
            objc::method<"isEqual:", &TextRange::isEqual>(),
            objc::method<"hash", &TextRange::hash>(),
        };
    }

    static ui::TextRange with(ns::Range range) {
        const auto made = ui::TextRange::make();
        of(made).range_ = range;
        return made;
    }
    /// The empty range at the start for nil.
    static ns::Range rangeOf(ui::TextRange range) {
        const auto known = range.as<ui::TextRange>();
        return known ? of(known).range_ : ns::Range();
    }

private:
    [[nodiscard]] ui::TextPosition start() const { return TextPosition::at(range_.location); }
    [[nodiscard]] ui::TextPosition end() const {
        return TextPosition::at(range_.location + range_.length);
    }
    [[nodiscard]] bool isEmpty() const { return range_.length == 0; }
    [[nodiscard]] bool isEqual(objc::Object other) const {
        const auto range = other.as<ui::TextRange>();
        return range && of(range).range_ == range_;
    }
    [[nodiscard]] unsigned long hash() const { return range_.location * 31 + range_.length; }

    ns::Range range_;
};

} // namespace desktop
