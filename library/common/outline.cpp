// The layer's corners and border.
#include "library/common/outline.hpp"

namespace wentra {

void drawOutline(ui::View view, const Outline& outline) {
    const ca::Layer layer = view.layer();
    layer.setCornerRadius(outline.cornerRadius);
    layer.setBorderWidth(outline.width);
    layer.setBorderColor(outline.color.cgColor());
}

} // namespace wentra
