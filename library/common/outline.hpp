// The rim of a view.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra {

/// Round corners with a line along them, in points. A width of 0 is no line.
struct Outline {
    double cornerRadius = 0;
    double width = 0;
    ui::Color color = nullptr;
};

void drawOutline(ui::View view, const Outline& outline);

} // namespace wentra
