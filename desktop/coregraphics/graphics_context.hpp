// The canvas that drawing methods draw on at the moment.
#pragma once

#include "bindings/coregraphics/context.hpp"
#include "bindings/coregraphics/geometry.hpp"
#include "desktop/drawing/canvas.hpp"

namespace desktop {

/// The innermost canvas made current on this thread; null outside of drawing.
[[nodiscard]] Canvas* currentCanvas();

/// Makes a canvas the current one for a scope. Scopes nest.
class CurrentCanvas {
public:
    explicit CurrentCanvas(Canvas& canvas);
    CurrentCanvas(const CurrentCanvas&) = delete;
    CurrentCanvas& operator=(const CurrentCanvas&) = delete;
    ~CurrentCanvas();

private:
    Canvas* outer_;
};

/// A canvas as applications know it.
inline CGContextRef contextRef(Canvas* canvas) { return reinterpret_cast<CGContextRef>(canvas); }
inline Canvas* canvasOf(CGContextRef context) { return reinterpret_cast<Canvas*>(context); }

/// The same rectangle in the drawing core's type.
inline Rectangle rectangle(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace desktop
