// The plain application: a window, a view and two labels, and no class of its own.
#include "desktop/host/app.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"

namespace desktop::host {
namespace {

using namespace ns::literals;

void addLabel(ui::View view, CGRect frame, ns::String text) {
    const auto label = ui::Label::withFrame(frame);
    label.setText(text);
    view.addSubview(label);
}

void launch() {
    const CGRect bounds = ui::Screen::mainScreen().bounds();
    // Kept for the life of the process, as an application delegate keeps its window.
    static const auto* window = new objc::Strong(ui::Window::withFrame(bounds));
    const auto view = ui::View::withFrame(bounds);
    view.setBackgroundColor(ui::Color::systemBackground());
    view.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    window->addSubview(view);
    addLabel(view, {{20, 80}, {bounds.size.width - 40, 28}}, u"你好，世界"_ns);
    addLabel(view, {{20, 120}, {bounds.size.width - 40, 28}}, u"Hello, world"_ns);
    window->makeKeyAndVisible();
}

} // namespace

const App plainApp{"plain", "com.example.plain", [] {}, nullptr, &launch, false};

} // namespace desktop::host
