// View controllers and the loading of their views.
#include "desktop/uikit/view_controller.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/uikit/view.hpp"

namespace desktop {

ViewController::~ViewController() { setView(nullptr); }

ui::View ViewController::view() {
    if (!view_) {
        self().send<"loadView">();
        self().viewDidLoad();
    }
    return view_;
}

void ViewController::setView(ui::View view) {
    if (view_) {
        View::of(view_).setController(nullptr);
    }
    view_ = view;
    if (view_) {
        View::of(view_).setController(self());
    }
}

void ViewController::loadView() {
    const auto view = ui::View::withFrame(ui::Screen::main().bounds());
    view.setBackgroundColor(ui::Color::systemBackground());
    setView(view);
}

ui::Responder ViewController::nextResponder() const { return view_.superview(); }

} // namespace desktop
