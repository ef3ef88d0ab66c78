// UIColor.
#pragma once

#include "bindings/coregraphics/color.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/uikit/trait_collection.hpp"

namespace ui {

struct Color : objc::Kind<Color, "UIColor"> {
    using Kind::Kind;

    /// Components from 0 to 1, in sRGB.
    static Color withRed(double red, double green, double blue, double alpha) {
        return sendClass<"colorWithRed:green:blue:alpha:", Color>(red, green, blue, alpha);
    }
    static Color withWhite(double white, double alpha) {
        return sendClass<"colorWithWhite:alpha:", Color>(white, alpha);
    }
    /// A colour that is asked for anew wherever it is shown; must not answer nil.
    using Provider = objc::Block<Color(TraitCollection)>;
    static Color dynamic(Provider provider) {
        return sendClass<"colorWithDynamicProvider:", Color>(provider);
    }
    /// What the colour is with those traits: one that never changes.
    [[nodiscard]] Color resolvedWith(TraitCollection traits) const {
        return send<"resolvedColorWithTraitCollection:", Color>(traits);
    }
    static Color black() { return sendClass<"blackColor", Color>(); }
    static Color white() { return sendClass<"whiteColor", Color>(); }
    static Color red() { return sendClass<"redColor", Color>(); }
    static Color green() { return sendClass<"greenColor", Color>(); }
    static Color orange() { return sendClass<"orangeColor", Color>(); }
    static Color purple() { return sendClass<"purpleColor", Color>(); }
    static Color blue() { return sendClass<"blueColor", Color>(); }
    static Color gray() { return sendClass<"grayColor", Color>(); }
    static Color darkGray() { return sendClass<"darkGrayColor", Color>(); }
    static Color lightGray() { return sendClass<"lightGrayColor", Color>(); }
    static Color clear() { return sendClass<"clearColor", Color>(); }
    static Color label() { return sendClass<"labelColor", Color>(); }
    static Color secondaryLabel() { return sendClass<"secondaryLabelColor", Color>(); }
    static Color systemBackground() { return sendClass<"systemBackgroundColor", Color>(); }
    static Color systemBlue() { return sendClass<"systemBlueColor", Color>(); }
    static Color systemPurple() { return sendClass<"systemPurpleColor", Color>(); }

    /// What UIColor's class method of that name answers ("redColor"), if it is a colour; nil when
    /// there is no such method. The name must take no arguments.
    static Color named(const std::string& classMethod) {
        const SEL name = sel_registerName(classMethod.c_str());
        const objc::Object receiver = objc::wrap(objc::object(classObject()));
        return receiver.respondsToSelector(name)
                   ? objc::sendTo<objc::Object>(receiver.raw(), name).as<Color>()
                   : nullptr;
    }

    [[nodiscard]] Color withAlphaComponent(double alpha) const {
        return send<"colorWithAlphaComponent:", Color>(alpha);
    }
    /// False when the colour has no such components (a pattern).
    bool getRed(double* red, double* green, double* blue, double* alpha) const {
        return send<"getRed:green:blue:alpha:", bool>(red, green, blue, alpha);
    }
    /// Borrowed: valid as long as the colour.
    [[nodiscard]] CGColorRef cgColor() const { return send<"CGColor", CGColorRef>(); }
};

} // namespace ui
