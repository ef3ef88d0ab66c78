// UIFont.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"

namespace ui {

struct Font : objc::Kind<Font, "UIFont"> {
    using Kind::Kind;

    /// Weights as the platform counts them, from -1 to 1.
    static constexpr double regular = 0;
    static constexpr double medium = 0.23;
    static constexpr double semibold = 0.3;
    static constexpr double bold = 0.4;

    /// Size in points.
    static Font system(double size) { return sendClass<"systemFontOfSize:", Font>(size); }
    static Font system(double size, double weight) {
        return sendClass<"systemFontOfSize:weight:", Font>(size, weight);
    }
    /// The system's font in which all letters are of one width.
    static Font monospacedSystem(double size, double weight) {
        return sendClass<"monospacedSystemFontOfSize:weight:", Font>(size, weight);
    }
    static Font boldSystem(double size) { return sendClass<"boldSystemFontOfSize:", Font>(size); }
    /// The font of that PostScript, full or family name; nil when there is none.
    static Font withName(ns::String name, double size) {
        return sendClass<"fontWithName:size:", Font>(name, size);
    }

    /// The names of all families.
    static ns::ArrayOf<ns::String> familyNames() {
        return sendClass<"familyNames", ns::ArrayOf<ns::String>>();
    }

    [[nodiscard]] Font withSize(double size) const { return send<"fontWithSize:", Font>(size); }
    [[nodiscard]] double pointSize() const { return send<"pointSize", double>(); }
    [[nodiscard]] double lineHeight() const { return send<"lineHeight", double>(); }
    [[nodiscard]] ns::String fontName() const { return send<"fontName", ns::String>(); }
};

} // namespace ui
