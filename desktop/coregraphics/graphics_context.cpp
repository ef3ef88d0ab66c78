// The stack of current canvases.
#include "desktop/coregraphics/graphics_context.hpp"

#include <utility>

namespace desktop {
namespace {

thread_local Canvas* current = nullptr;

} // namespace

Canvas* currentCanvas() { return current; }

CurrentCanvas::CurrentCanvas(Canvas& canvas) : outer_(std::exchange(current, &canvas)) {}

CurrentCanvas::~CurrentCanvas() { current = outer_; }

} // namespace desktop
