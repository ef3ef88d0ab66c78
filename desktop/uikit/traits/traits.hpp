// What views are told about the screen: appearance, room, scale and text size, as plain values.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/uikit/trait_collection.hpp"
#include "desktop/uikit/traits/content_size.hpp"

namespace desktop {

/// A value that is unspecified, or no scale, tells nothing.
struct Traits {
    ui::InterfaceStyle style = ui::InterfaceStyle::unspecified;
    ui::SizeClass horizontal = ui::SizeClass::unspecified;
    ui::SizeClass vertical = ui::SizeClass::unspecified;
    double scale = 0;
    ui::InterfaceLevel level = ui::InterfaceLevel::unspecified;
    ContentSize contentSize = ContentSize::unspecified;
    bool operator==(const Traits&) const = default;
};

/// The traits of a phone whose screen has that size in points, as it is held.
[[nodiscard]] Traits phoneTraits(CGSize screen, double scale, ui::InterfaceStyle style,
                                 ContentSize contentSize = ContentSize::large);

/// `traits` with everything that `over` tells.
[[nodiscard]] Traits merged(Traits traits, const Traits& over);

/// Whether colours may be others in the one than in the other.
[[nodiscard]] bool differInColour(const Traits& one, const Traits& other);

} // namespace desktop
