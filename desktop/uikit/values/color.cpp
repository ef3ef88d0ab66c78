// UIColor's makers, named colours and components.
#include "desktop/uikit/values/color.hpp"

#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/immutable.hpp"

#include <cmath>
#include <cstdio>
#include <vector>

namespace desktop {
namespace {

constexpr double channel(unsigned int rgba, unsigned int shift) {
    return ((rgba >> shift) & 0xFFU) / 255.0;
}

constexpr Colour colourOf(unsigned int rgba) {
    return {channel(rgba, 24), channel(rgba, 16), channel(rgba, 8), channel(rgba, 0)};
}

template <unsigned int Light, unsigned int Dark, unsigned int DarkElevated>
ui::Color constant(Class) {
    return Color::adaptive(colourOf(Light), colourOf(Dark), colourOf(DarkElevated));
}

/// A class method that answers one colour, given as 0xRRGGBBAA, or one for each appearance and, in
/// the dark, each level.
template <objc::Literal Name, unsigned int Light, unsigned int Dark = Light,
          unsigned int DarkElevated = Dark>
objc::MethodRow named() {
    return objc::classMethod<Name, &constant<Light, Dark, DarkElevated>>();
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
        objc::classMethod<"colorWithDynamicProvider:", &Color::withProvider>(),
        objc::method<"resolvedColorWithTraitCollection:", &Color::resolvedWith>(),
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
        named<"darkTextColor", 0x000000FF>(),
        named<"lightTextColor", 0xFFFFFF99>(),
        named<"systemRedColor", 0xFF3B30FF, 0xFF453AFF>(),
        named<"systemGreenColor", 0x34C759FF, 0x30D158FF>(),
        named<"systemBlueColor", 0x007AFFFF, 0x0A84FFFF>(),
        named<"systemOrangeColor", 0xFF9500FF, 0xFF9F0AFF>(),
        named<"systemYellowColor", 0xFFCC00FF, 0xFFD60AFF>(),
        named<"systemPinkColor", 0xFF2D55FF, 0xFF375FFF>(),
        named<"systemPurpleColor", 0xAF52DEFF, 0xBF5AF2FF>(),
        named<"systemTealColor", 0x5AC8FAFF, 0x64D2FFFF>(),
        named<"systemIndigoColor", 0x5856D6FF, 0x5E5CE6FF>(),
        named<"systemGrayColor", 0x8E8E93FF>(),
        named<"systemGray2Color", 0xAEAEB2FF, 0x636366FF>(),
        named<"systemGray3Color", 0xC7C7CCFF, 0x48484AFF>(),
        named<"systemGray4Color", 0xD1D1D6FF, 0x3A3A3CFF>(),
        named<"systemGray5Color", 0xE5E5EAFF, 0x2C2C2EFF>(),
        named<"systemGray6Color", 0xF2F2F7FF, 0x1C1C1EFF>(),
        named<"labelColor", 0x000000FF, 0xFFFFFFFF>(),
        named<"secondaryLabelColor", 0x3C3C4399, 0xEBEBF599>(),
        named<"tertiaryLabelColor", 0x3C3C434C, 0xEBEBF54C>(),
        named<"quaternaryLabelColor", 0x3C3C432D, 0xEBEBF528>(),
        named<"placeholderTextColor", 0x3C3C434C, 0xEBEBF54C>(),
        named<"separatorColor", 0x3C3C4349, 0x54545899>(),
        named<"opaqueSeparatorColor", 0xC6C6C8FF, 0x38383AFF>(),
        named<"linkColor", 0x007AFFFF, 0x0984FFFF>(),
        named<"systemFillColor", 0x78788033, 0x7878805B>(),
        named<"secondarySystemFillColor", 0x78788028, 0x78788051>(),
        named<"tertiarySystemFillColor", 0x7676801E, 0x7676803D>(),
        named<"quaternarySystemFillColor", 0x74748014, 0x7676802D>(),
        named<"systemBackgroundColor", 0xFFFFFFFF, 0x000000FF, 0x1C1C1EFF>(),
        named<"secondarySystemBackgroundColor", 0xF2F2F7FF, 0x1C1C1EFF, 0x2C2C2EFF>(),
        named<"tertiarySystemBackgroundColor", 0xFFFFFFFF, 0x2C2C2EFF, 0x3A3A3CFF>(),
        named<"systemGroupedBackgroundColor", 0xF2F2F7FF, 0x000000FF, 0x1C1C1EFF>(),
        named<"secondarySystemGroupedBackgroundColor", 0xFFFFFFFF, 0x1C1C1EFF, 0x2C2C2EFF>(),
        named<"tertiarySystemGroupedBackgroundColor", 0xF2F2F7FF, 0x2C2C2EFF, 0x3A3A3CFF>(),
    };
}

Colour Color::valueOf(ui::Color color, const Traits& traits) {
    if (!color) {
        return {0, 0, 0, 0};
    }
    const Color& peer = of(color);
    if (peer.provider_) {
        return valueOf(peer.provider_(TraitCollection::with(traits)), traits);
    }
    if (traits.style != ui::InterfaceStyle::dark) {
        return peer.light_;
    }
    return traits.level == ui::InterfaceLevel::elevated ? peer.darkElevated_ : peer.dark_;
}

Colour Color::valueOf(ui::Color color) { return valueOf(color, CurrentTraits::get()); }

ui::Color Color::with(Colour value) { return adaptive(value, value); }

ui::Color Color::adaptive(Colour light, Colour dark) { return adaptive(light, dark, dark); }

ui::Color Color::adaptive(Colour light, Colour dark, Colour darkElevated) {
    const auto color = ui::Color::make();
    of(color).light_ = light;
    of(color).dark_ = dark;
    of(color).darkElevated_ = darkElevated;
    return color;
}

ui::Color Color::withProvider(Class, ui::Color::Provider provider) {
    const auto color = ui::Color::make();
    of(color).provider_ = provider;
    return color;
}

bool Color::isDynamic(ui::Color color) {
    return color && (of(color).provider_ || of(color).light_ != of(color).dark_ ||
                     of(color).dark_ != of(color).darkElevated_);
}

ui::Color Color::resolved(const Traits& traits) const {
    return isDynamic(self()) ? with(valueOf(self(), traits)) : self();
}

ui::Color Color::resolvedWith(ui::TraitCollection traits) const {
    return resolved(merged(screenTraits(), TraitCollection::valueOf(traits)));
}

CGColorRef Color::cgColor() const {
    return reinterpret_cast<CGColorRef>(resolved(CurrentTraits::get()).raw());
}

ui::Color Color::initWithComponents(double red, double green, double blue, double alpha) {
    light_ = dark_ = darkElevated_ = {red, green, blue, alpha};
    return self();
}

/// A colour that adapts goes on adapting.
ui::Color Color::withAlpha(double alpha) const {
    if (provider_) {
        return withProvider(nullptr,
                            ui::Color::Provider::from([kept = objc::Strong<ui::Color>(self()),
                                                       alpha](ui::TraitCollection traits) {
                                return kept.resolvedWith(traits).withAlphaComponent(alpha);
                            }));
    }
    const auto faded = [alpha](Colour of) { return Colour{of.red, of.green, of.blue, alpha}; };
    return adaptive(faded(light_), faded(dark_), faded(darkElevated_));
}

bool Color::components(double* red, double* green, double* blue, double* alpha) const {
    const auto store = [](double* place, double component) {
        if (place != nullptr) {
            *place = component;
        }
    };
    const Colour value = valueOf(self());
    store(red, value.red);
    store(green, value.green);
    store(blue, value.blue);
    store(alpha, value.alpha);
    return true;
}

bool Color::isEqual(objc::Object other) const {
    const auto color = other.as<ui::Color>();
    if (!color || provider_ || of(color).provider_) {
        return other == self();
    }
    return of(color).light_ == light_ && of(color).dark_ == dark_ &&
           of(color).darkElevated_ == darkElevated_;
}

unsigned long Color::hash() const {
    constexpr double steps = 255;
    constexpr unsigned long spread = 31;
    unsigned long hash = 0;
    for (const double component : {light_.red, light_.green, light_.blue, light_.alpha}) {
        hash = hash * spread + static_cast<unsigned long>(std::lround(component * steps));
    }
    return hash;
}

ns::String Color::description() const {
    std::array<char, 128> text{};
    const Colour value = valueOf(self());
    std::snprintf(text.data(), text.size(), "%s %g %g %g %g",
                  isDynamic(self()) ? "UIDynamicColor" : "UIExtendedSRGBColorSpace", value.red,
                  value.green, value.blue, value.alpha);
    return ns::String::fromUtf8(text.data());
}

} // namespace desktop
