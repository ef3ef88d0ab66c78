// UIColor: an sRGB colour, or one that adapts to traits. A CGColor is a colour that does not.
#pragma once

#include "bindings/uikit/color.hpp"

#include "bindings/objc/strong.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/colour.hpp"
#include "desktop/uikit/traits/traits.hpp"

namespace desktop {

class Color : public PlatformClass<Color, ui::Color> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The value of `color` with those traits, or the current ones; clear for nil.
    static Colour valueOf(ui::Color color, const Traits& traits);
    static Colour valueOf(ui::Color color);
    static ui::Color with(Colour value);
    /// The one in light appearance, the other in dark, at every level.
    static ui::Color adaptive(Colour light, Colour dark);
    static ui::Color adaptive(Colour light, Colour dark, Colour darkElevated);
    /// Whether traits make a difference. Not for nil.
    static bool isDynamic(ui::Color color);

private:
    ui::Color initWithComponents(double red, double green, double blue, double alpha);
    [[nodiscard]] ui::Color withAlpha(double alpha) const;
    bool components(double* red, double* green, double* blue, double* alpha) const;
    [[nodiscard]] CGColorRef cgColor() const;
    [[nodiscard]] ui::Color resolvedWith(ui::TraitCollection traits) const;
    [[nodiscard]] ui::Color resolved(const Traits& traits) const;
    static ui::Color withProvider(Class, ui::Color::Provider provider);
    [[nodiscard]] bool isEqual(objc::Object other) const;
    [[nodiscard]] unsigned long hash() const;
    [[nodiscard]] ns::String description() const;

    Colour light_;
    Colour dark_;
    Colour darkElevated_;
    /// Only of a colour that is made anew each time.
    objc::Copied<ui::Color::Provider> provider_;
};

} // namespace desktop
