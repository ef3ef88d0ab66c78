// The home screen, with the one application that runs on the phone.
#pragma once

#include "desktop/drawing/canvas.hpp"

#include <string_view>

namespace desktop {

/// Where the application's icon is, on a screen of that size in points.
[[nodiscard]] Rectangle homeScreenIcon(Size screen);

/// Wallpaper, icon and the application's name, which is not empty.
void drawHomeScreen(Canvas& canvas, Size screen, std::u16string_view application);

} // namespace desktop
