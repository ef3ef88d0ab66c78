// Where a button's image and title lie. Points; no views.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

namespace desktop {

/// The platform's numbers; leading and trailing are left and right here.
enum class HorizontalAlignment : long {
    center = 0,
    left = 1,
    right = 2,
    fill = 3,
    leading,
    trailing
};
enum class VerticalAlignment : long { center = 0, top = 1, bottom = 2, fill = 3 };

struct ButtonContent {
    /// Sizes of what there is; zero for what is not there.
    CGSize image;
    CGSize title;
    /// Around both; these make the button larger. The other two only move things.
    UIEdgeInsets contentInsets;
    UIEdgeInsets imageInsets;
    UIEdgeInsets titleInsets;
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;
};

struct ButtonLayout {
    CGRect image;
    CGRect title;
};

/// The image stands left of the title, both together where the alignment says. The title gives way
/// first when there is not enough room.
[[nodiscard]] ButtonLayout layOutButton(const ButtonContent& content, CGRect bounds);

/// The size that a button takes for its content.
[[nodiscard]] CGSize buttonSize(const ButtonContent& content);

} // namespace desktop
