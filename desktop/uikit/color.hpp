// UIColor: an sRGB colour. Its CGColor is the object itself.
#pragma once

#include "bindings/uikit/color.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/colour.hpp"

namespace desktop {

class Color : public PlatformClass<Color, ui::Color> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The value of `color`; clear for nil.
    static Colour valueOf(ui::Color color) { return color ? of(color).value_ : Colour{0, 0, 0, 0}; }
    static ui::Color with(Colour value);

private:
    ui::Color initWithComponents(double red, double green, double blue, double alpha);
    [[nodiscard]] ui::Color withAlpha(double alpha) const;
    bool components(double* red, double* green, double* blue, double* alpha) const;
    [[nodiscard]] CGColorRef cgColor() const { return reinterpret_cast<CGColorRef>(self().raw()); }
    [[nodiscard]] bool isEqual(objc::Object other) const;
    [[nodiscard]] unsigned long hash() const;
    [[nodiscard]] ns::String description() const;

    Colour value_;
};

} // namespace desktop
