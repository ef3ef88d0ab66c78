// UIFont's makers, names and measures.
#include "desktop/uikit/values/font.hpp"

#include "desktop/drawing/font_catalogue.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/immutable.hpp"

#include <array>
#include <cmath>
#include <functional>
#include <utility>

namespace desktop {
namespace {

/// The platform's weights, from -1 to 1, beside those of font files.
constexpr std::array<std::pair<double, int>, 9> weights{{{-0.8, 100},
                                                         {-0.6, 200},
                                                         {-0.4, 300},
                                                         {0, 400},
                                                         {0.23, 500},
                                                         {0.3, 600},
                                                         {0.4, 700},
                                                         {0.56, 800},
                                                         {0.62, 900}}};

int nearestWeight(double weight) {
    return std::ranges::min(weights, {},
                            [weight](const auto& known) { return std::abs(known.first - weight); })
        .second;
}

Font system(double size, int weight) {
    Font font;
    font.size = size;
    font.weight = weight;
    return font;
}

ui::Font systemFont(Class, double size) { return UIFont::with(system(size, 400)); }
ui::Font boldSystemFont(Class, double size) { return UIFont::with(system(size, 700)); }
ui::Font weightedSystemFont(Class, double size, double weight) {
    return UIFont::with(system(size, nearestWeight(weight)));
}
ui::Font italicSystemFont(Class, double size) {
    Font font = system(size, 400);
    font.italic = true;
    return UIFont::with(font);
}
ui::Font monospacedSystemFont(Class, double size, double weight) {
    Font font = system(size, nearestWeight(weight));
    font.family = Font::monospacedFamily;
    return UIFont::with(font);
}
ui::Font monospacedDigitFont(Class, double size, double weight) {
    Font font = system(size, nearestWeight(weight));
    font.monospacedDigits = true;
    return UIFont::with(font);
}

ui::Font preferredFontIn(Class, ns::String style, ui::TraitCollection traits) {
    const ContentSize told = TraitCollection::valueOf(traits).contentSize;
    const bool isTold = told != ContentSize::unspecified;
    return UIFont::preferred(style.utf16(), isTold ? told : screenTraits().contentSize);
}
ui::Font preferredFont(Class, ns::String style) { return preferredFontIn(nullptr, style, nullptr); }

ui::Font fontWithName(Class, ns::String name, double size) {
    const auto font = fontNamed(name.utf8(), size);
    return font ? UIFont::with(*font) : nullptr;
}

ns::Array strings(const std::vector<std::string>& names) {
    const auto array = ns::MutableArray::make();
    for (const std::string& name : names) {
        array.add(ns::String::fromUtf8(name));
    }
    return array;
}

ns::Array families(Class) { return strings(familyNames()); }
ns::Array namesOfFamily(Class, ns::String family) { return strings(fontNames(family.utf8())); }

} // namespace

std::vector<objc::MethodRow> UIFont::methods() {
    return {
        objc::classMethod<"systemFontOfSize:", &systemFont>(),
        objc::classMethod<"systemFontOfSize:weight:", &weightedSystemFont>(),
        objc::classMethod<"boldSystemFontOfSize:", &boldSystemFont>(),
        objc::classMethod<"italicSystemFontOfSize:", &italicSystemFont>(),
        objc::classMethod<"monospacedSystemFontOfSize:weight:", &monospacedSystemFont>(),
        objc::classMethod<"monospacedDigitSystemFontOfSize:weight:", &monospacedDigitFont>(),
        objc::classMethod<"preferredFontForTextStyle:", &preferredFont>(),
        objc::classMethod<"preferredFontForTextStyle:compatibleWithTraitCollection:",
                          &preferredFontIn>(),
        objc::classMethod<"fontWithName:size:", &fontWithName>(),
        objc::classMethod<"familyNames", &families>(),
        objc::classMethod<"fontNamesForFamilyName:", &namesOfFamily>(),
        objc::method<"fontWithSize:", &UIFont::withSize>(),
        objc::method<"pointSize", &UIFont::pointSize>(),
        objc::method<"ascender", &UIFont::ascender>(),
        objc::method<"descender", &UIFont::descender>(),
        objc::method<"lineHeight", &UIFont::lineHeight>(),
        objc::method<"capHeight", &UIFont::capHeight>(),
        objc::method<"xHeight", &UIFont::xHeight>(),
        objc::method<"fontName", &UIFont::fontName>(),
        objc::method<"familyName", &UIFont::familyName>(),
        objc::method<"isEqual:", &UIFont::isEqual>(),
        objc::method<"hash", &UIFont::hash>(),
        objc::method<"description", &UIFont::fontName>(),
        copyIsSelf(),
    };
}

Font UIFont::valueOf(ui::Font font) { return font ? of(font).value_ : system(defaultSize, 400); }

ui::Font UIFont::with(Font value) {
    const auto font = ui::Font::make();
    of(font).value_ = std::move(value);
    return font;
}

ui::Font UIFont::preferred(std::u16string_view name, ContentSize size) {
    const TextStyle& style = textStyleNamed(name);
    const ui::Font font = with(system(style.sizeIn(size), style.weight));
    of(font).style_ = &style;
    return font;
}

ui::Font UIFont::resized(ui::Font font, ContentSize size) {
    const TextStyle* style = font ? of(font).style_ : nullptr;
    return style != nullptr ? preferred(style->name, size) : font;
}

ui::Font UIFont::withSize(double size) const {
    Font font = value_;
    font.size = size;
    return with(std::move(font));
}

ns::String UIFont::fontName() const { return ns::String::fromUtf8(postScriptName(value_)); }

ns::String UIFont::familyName() const {
    return ns::String::fromUtf8(value_.family.empty() ? ".AppleSystemUIFont" : value_.family);
}

bool UIFont::isEqual(objc::Object other) const {
    const auto font = other.as<ui::Font>();
    return font && of(font).value_ == value_;
}

unsigned long UIFont::hash() const {
    return std::hash<std::string>()(value_.family) ^ std::hash<double>()(value_.size) ^
           static_cast<unsigned long>(value_.weight);
}

} // namespace desktop
