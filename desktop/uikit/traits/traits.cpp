// The rules of traits.
#include "desktop/uikit/traits/traits.hpp"

#include <algorithm>

namespace desktop {

Traits phoneTraits(CGSize screen, double scale, ui::InterfaceStyle style) {
    // Held sideways, only the large phones have room for two columns.
    constexpr double largePhone = 414;
    const bool isUpright = screen.height >= screen.width;
    const bool isLarge = std::min(screen.width, screen.height) >= largePhone;
    Traits traits;
    traits.style = style;
    traits.horizontal = !isUpright && isLarge ? ui::SizeClass::regular : ui::SizeClass::compact;
    traits.vertical = isUpright ? ui::SizeClass::regular : ui::SizeClass::compact;
    traits.scale = scale;
    return traits;
}

Traits merged(Traits traits, const Traits& over) {
    const auto take = [](auto& value, const auto& told) {
        if (told != std::remove_cvref_t<decltype(told)>{}) {
            value = told;
        }
    };
    take(traits.style, over.style);
    take(traits.horizontal, over.horizontal);
    take(traits.vertical, over.vertical);
    take(traits.scale, over.scale);
    return traits;
}

bool differInColour(const Traits& one, const Traits& other) { return one.style != other.style; }

} // namespace desktop
