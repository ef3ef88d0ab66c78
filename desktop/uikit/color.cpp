// UIColor's makers, named colours and components.
#include "desktop/uikit/color.hpp"

#include "desktop/uikit/immutable.hpp"

#include <cmath>
#include <cstdio>
#include <vector>

namespace desktop {
namespace {

constexpr double channel(unsigned int rgba, unsigned int shift) {
    return ((rgba >> shift) & 0xFFU) / 255.0;
}

template <unsigned int Rgba>
ui::Color constant(Class) {
    return Color::with({channel(Rgba, 24), channel(Rgba, 16), channel(Rgba, 8), channel(Rgba, 0)});
}

/// A class method that answers one colour, given as 0xRRGGBBAA.
template <objc::Literal Name, unsigned int Rgba>
objc::MethodRow named() {
    return objc::classMethod<Name, &constant<Rgba>>();
}

ui::Color rgba(Class, double red, double green, double blue, double alpha) {
    return Color::with({red, green, blue, alpha});
}

ui::Color whiteAlpha(Class, double white, double alpha) {
    return Color::with({white, white, white, alpha});
}

} // namespace

std::vector<objc::MethodRow> Color::methods() {
    return {
        objc::classMethod<"colorWithRed:green:blue:alpha:", &rgba>(),
        objc::classMethod<"colorWithWhite:alpha:", &whiteAlpha>(),
        objc::method<"initWithRed:green:blue:alpha:", &Color::initWithComponents>(),
        objc::method<"colorWithAlphaComponent:", &Color::withAlpha>(),
        objc::method<"getRed:green:blue:alpha:", &Color::components>(),
        objc::method<"CGColor", &Color::cgColor>(),
        objc::method<"isEqual:", &Color::isEqual>(),
        objc::method<"hash", &Color::hash>(),
        objc::method<"description", &Color::description>(),
        copyIsSelf(),
        named<"blackColor", 0x000000FF>(),
        named<"darkGrayColor", 0x555555FF>(),
        named<"lightGrayColor", 0xAAAAAAFF>(),
        named<"whiteColor", 0xFFFFFFFF>(),
        named<"grayColor", 0x808080FF>(),
        named<"redColor", 0xFF0000FF>(),
        named<"greenColor", 0x00FF00FF>(),
        named<"blueColor", 0x0000FFFF>(),
        named<"cyanColor", 0x00FFFFFF>(),
        named<"yellowColor", 0xFFFF00FF>(),
        named<"magentaColor", 0xFF00FFFF>(),
        named<"orangeColor", 0xFF8000FF>(),
        named<"purpleColor", 0x800080FF>(),
        named<"brownColor", 0x996633FF>(),
        named<"clearColor", 0x00000000>(),
        // The adaptable colours, as they are in light appearance.
        named<"systemRedColor", 0xFF3B30FF>(),
        named<"systemGreenColor", 0x34C759FF>(),
        named<"systemBlueColor", 0x007AFFFF>(),
        named<"systemOrangeColor", 0xFF9500FF>(),
        named<"systemYellowColor", 0xFFCC00FF>(),
        named<"systemPinkColor", 0xFF2D55FF>(),
        named<"systemPurpleColor", 0xAF52DEFF>(),
        named<"systemTealColor", 0x5AC8FAFF>(),
        named<"systemIndigoColor", 0x5856D6FF>(),
        named<"systemGrayColor", 0x8E8E93FF>(),
        named<"systemGray2Color", 0xAEAEB2FF>(),
        named<"systemGray3Color", 0xC7C7CCFF>(),
        named<"systemGray4Color", 0xD1D1D6FF>(),
        named<"systemGray5Color", 0xE5E5EAFF>(),
        named<"systemGray6Color", 0xF2F2F7FF>(),
        named<"labelColor", 0x000000FF>(),
        named<"secondaryLabelColor", 0x3C3C4399>(),
        named<"tertiaryLabelColor", 0x3C3C434C>(),
        named<"quaternaryLabelColor", 0x3C3C432D>(),
        named<"placeholderTextColor", 0x3C3C434C>(),
        named<"separatorColor", 0x3C3C4349>(),
        named<"linkColor", 0x007AFFFF>(),
        named<"systemBackgroundColor", 0xFFFFFFFF>(),
        named<"secondarySystemBackgroundColor", 0xF2F2F7FF>(),
        named<"tertiarySystemBackgroundColor", 0xFFFFFFFF>(),
        named<"systemGroupedBackgroundColor", 0xF2F2F7FF>(),
        named<"secondarySystemGroupedBackgroundColor", 0xFFFFFFFF>(),
    };
}

ui::Color Color::with(Colour value) {
    const auto color = ui::Color::make();
    of(color).value_ = value;
    return color;
}

ui::Color Color::initWithComponents(double red, double green, double blue, double alpha) {
    value_ = {red, green, blue, alpha};
    return self();
}

ui::Color Color::withAlpha(double alpha) const {
    return with({value_.red, value_.green, value_.blue, alpha});
}

bool Color::components(double* red, double* green, double* blue, double* alpha) const {
    const auto store = [](double* place, double component) {
        if (place != nullptr) {
            *place = component;
        }
    };
    store(red, value_.red);
    store(green, value_.green);
    store(blue, value_.blue);
    store(alpha, value_.alpha);
    return true;
}

bool Color::isEqual(objc::Object other) const {
    const auto color = other.as<ui::Color>();
    return color && of(color).value_ == value_;
}

unsigned long Color::hash() const {
    constexpr double steps = 255;
    constexpr unsigned long spread = 31;
    unsigned long hash = 0;
    for (const double component : {value_.red, value_.green, value_.blue, value_.alpha}) {
        hash = hash * spread + static_cast<unsigned long>(std::lround(component * steps));
    }
    return hash;
}

ns::String Color::description() const {
    std::array<char, 128> text{};
    std::snprintf(text.data(), text.size(), "UIExtendedSRGBColorSpace %g %g %g %g", value_.red,
                  value_.green, value_.blue, value_.alpha);
    return ns::String::fromUtf8(text.data());
}

} // namespace desktop
