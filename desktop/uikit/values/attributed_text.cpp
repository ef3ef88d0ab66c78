// Reading fonts, colours and lines from attributes.
#include "desktop/uikit/values/attributed_text.hpp"

#include "bindings/foundation/number.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"

namespace desktop {

namespace attributes = ui::attributes;

ns::Dictionary textAttributes(ui::Font font, ui::Color color) {
    const auto made = ns::MutableDictionary::make();
    if (font) {
        made.set(font, attributes::font());
    }
    if (color) {
        made.set(color, attributes::foregroundColor());
    }
    return made;
}

TextRun lookOf(ns::Dictionary given, const TextRun& plain) {
    TextRun look = plain;
    const auto isOn = [given](ns::String name) {
        const auto style = given.get(name).as<ns::Number>();
        return style && style.integerValue() != 0;
    };
    if (const auto font = given.get(attributes::font()).as<ui::Font>(); font) {
        look.font = UIFont::valueOf(font);
    }
    if (const auto color = given.get(attributes::foregroundColor()).as<ui::Color>(); color) {
        look.colour = Color::valueOf(color);
    }
    if (const auto color = given.get(attributes::backgroundColor()).as<ui::Color>(); color) {
        look.background = Color::valueOf(color);
    }
    look.underline = look.underline || isOn(attributes::underlineStyle());
    look.strikethrough = look.strikethrough || isOn(attributes::strikethroughStyle());
    return look;
}

std::vector<TextRun> runsOf(ns::AttributedString text, Stretch stretch, const TextRun& plain) {
    std::vector<TextRun> runs;
    ns::Dictionary former;
    for (std::size_t unit = stretch.start; unit < stretch.end;) {
        ns::Range effective;
        const auto attributes = text.attributesAt(unit, &effective);
        const std::size_t end =
            std::min<std::size_t>(effective.location + effective.length, stretch.end);
        if (attributes == former && !runs.empty()) {
            runs.back().length += end - unit; // typing leaves many small stretches behind
            unit = std::max(end, unit + 1);
            continue;
        }
        former = attributes;
        TextRun run = lookOf(attributes, plain);
        run.start = unit - stretch.start;
        run.length = end - unit;
        runs.push_back(run);
        unit = std::max(end, unit + 1);
    }
    return runs;
}

} // namespace desktop
