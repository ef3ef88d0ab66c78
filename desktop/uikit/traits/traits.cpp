// The rules of traits.
#include "desktop/uikit/traits/traits.hpp"

#include <algorithm>

namespace desktop {

Traits phoneTraits(CGSize screen, double scale, ui::InterfaceStyle style, ContentSize contentSize) {
    // Held sideways, only the large phones have room for two columns.
    constexpr double largePhone = 414;
    const bool isUpright = screen.height >= screen.width;
    const bool isLarge = std::min(screen.width, screen.height) >= largePhone;
    Traits traits;
    traits.style = style;
    traits.horizontal = !isUpright && isLarge ? ui::SizeClass::regular : ui::SizeClass::compact;
    traits.vertical = isUpright ? ui::SizeClass::regular : ui::SizeClass::compact;
    traits.scale = scale;
    traits.level = ui::InterfaceLevel::base;
    traits.contentSize = contentSize;
    return traits;
}

Traits merged(Traits traits, const Traits& over) {
    const auto take = [&](auto Traits::*value) {
        if (over.*value != Traits().*value) {
            traits.*value = over.*value;
        }
    };
    take(&Traits::style);
    take(&Traits::horizontal);
    take(&Traits::vertical);
    take(&Traits::scale);
    take(&Traits::level);
    take(&Traits::contentSize);
    return traits;
}

bool differInColour(const Traits& one, const Traits& other) {
    return one.style != other.style || one.level != other.level;
}

} // namespace desktop
