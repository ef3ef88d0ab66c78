// Drawing the home screen.
#include "desktop/uikit/application/home_screen.hpp"

#include "desktop/drawing/handle.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop {
namespace {

using Gradient = Handle<cairo_pattern_t, cairo_pattern_destroy>;

void drawWallpaper(Canvas& canvas, Size screen) {
    const Gradient gradient(cairo_pattern_create_linear(0, 0, screen.width / 2, screen.height));
    cairo_pattern_add_color_stop_rgb(gradient.get(), 0, 0.16, 0.22, 0.45);
    cairo_pattern_add_color_stop_rgb(gradient.get(), 1, 0.05, 0.36, 0.48);
    cairo_set_source(canvas.context(), gradient.get());
    cairo_paint(canvas.context());
}

/// In white, about the middle of the rectangle.
void drawText(Canvas& canvas, std::u16string_view text, double size, const Rectangle& area) {
    TextRun look;
    look.font.size = size;
    look.font.weight = 500;
    look.colour = {1, 1, 1, 1};
    TextFrame frame;
    frame.width = area.width;
    frame.alignment = TextAlignment::center;
    const TextLayout layout(text, look, frame);
    layout.draw(canvas.context(), {area.x, area.y + (area.height - layout.size().height) / 2});
}

} // namespace

Rectangle homeScreenIcon(Size screen) {
    constexpr double side = 60;
    constexpr double left = 27;
    return {left, screen.height > screen.width ? 76.0 : 40.0, side, side};
}

void drawHomeScreen(Canvas& canvas, Size screen, std::u16string_view application) {
    constexpr Colour blue{0.04, 0.42, 1, 1};
    drawWallpaper(canvas, screen);
    const Rectangle icon = homeScreenIcon(screen);
    canvas.fill(icon, blue, 13.5);
    drawText(canvas, application.substr(0, 1), 32, icon);
    drawText(canvas, application, 12, {icon.x - 15, icon.y + icon.height + 3, icon.width + 30, 18});
}

} // namespace desktop
