// The one font kept between labels.
#include "library/labels/global_font.hpp"

#include <mutex>

namespace wentra::labels {
namespace {

std::mutex mutex;

objc::Strong<ui::Font>& kept() {
    static auto* font = new objc::Strong<ui::Font>; // outlives the process's last label
    return *font;
}

} // namespace

ui::Font globalFont() {
    const std::scoped_lock lock(mutex);
    const objc::Strong<ui::Font> font = kept();
    return font.autoreleased();
}

void rememberGlobalFont(ui::Font font) {
    const std::scoped_lock lock(mutex);
    kept() = font;
}

} // namespace wentra::labels
