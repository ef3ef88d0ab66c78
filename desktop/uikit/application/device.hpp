// The models of phones that the desktop can play.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <span>
#include <string_view>

namespace desktop {

/// What a phone has beside or in its screen: a button below it, or something that takes a part of
/// its upper edge.
enum class PhoneFront { homeButton, notch, island };
/// As above.
[[nodiscard]] std::string_view nameOf(PhoneFront front);

/// A model, by what an application and a person see of it; held upright, in points.
struct Device {
    std::string_view name; ///< as people know it; empty for a screen of any other size
    CGSize size;
    double scale = 3; ///< pixels a point
    PhoneFront front = PhoneFront::notch;
    double statusBar = 47; ///< the height of the status bar
    double top = 47;       ///< the margin of the safe area there; held sideways, at both sides
    double corner = 47;    ///< the radius of the screen's corners

    [[nodiscard]] bool hasHomeButton() const { return front == PhoneFront::homeButton; }
};

/// From small to large.
[[nodiscard]] std::span<const Device> devices();
/// Null when there is none of that name.
[[nodiscard]] const Device* deviceNamed(std::string_view name);
/// The one that is played unless another is asked for.
[[nodiscard]] const Device& usualDevice();
/// A phone with a screen of that size: a long one has a notch, any other a home button.
[[nodiscard]] Device deviceOfSize(CGSize size, double scale);

} // namespace desktop
