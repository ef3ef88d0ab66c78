// Drawing the clear button.
#include "desktop/uikit/controls/clear_button.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

namespace desktop {

void ClearButton::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const CGSize size = self().bounds().size;
    constexpr double disc = 14;
    constexpr double arm = 2.6;
    const double x = size.width / 2;
    const double y = size.height / 2;
    canvas->fill({x - disc / 2, y - disc / 2, disc, disc},
                 Color::valueOf(ui::Color::named("tertiaryLabelColor")), disc / 2);
    cairo_t* context = canvas->context();
    cairo_save(context);
    const Colour arms = Color::valueOf(ui::Color::systemBackground());
    cairo_set_source_rgb(context, arms.red, arms.green, arms.blue);
    cairo_set_line_width(context, 1.4);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_move_to(context, x - arm, y - arm);
    cairo_line_to(context, x + arm, y + arm);
    cairo_move_to(context, x + arm, y - arm);
    cairo_line_to(context, x - arm, y + arm);
    cairo_stroke(context);
    cairo_restore(context);
}

} // namespace desktop
