// Presents what tools show, or keeps it until the list has gone.
#include "library/utilities/tool_screens.hpp"

#include "bindings/objc/associated.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/webkit/web_view.hpp"
#include "library/common/alert.hpp"
#include "library/common/animated.hpp"
#include "library/common/buttons.hpp"
#include "library/common/screens.hpp"
#include "library/common/sharing.hpp"

namespace wentra::utilities {
namespace {

using namespace ns::literals;

bool haveAlert(ns::Array screens) {
    for (const objc::Object screen : screens) {
        if (screen.as<ui::AlertController>()) {
            return true;
        }
    }
    return false;
}

} // namespace

void ToolScreens::show(ui::ViewController screen) {
    if (holds_) {
        held_.add(screen);
        return;
    }
    const ui::ViewController top = topViewController();
    presentSheet(screen, top ? top : ui::ViewController(self()));
}

void ToolScreens::share(objc::Object item) { show(shareSheet(item)); }

void ToolScreens::showError(std::u16string_view message) {
    self().send<"showErrorAlertWithMessage:">(ns::String::from(message));
}

void ToolScreens::tell(ns::String message) {
    const auto alert = ui::AlertController::with(u"错误"_ns, message, ui::AlertStyle::alert);
    Alert(alert).action(u"好的"_ns);
    if (!holds_) {
        self().present(alert, animated);
    } else if (!haveAlert(held_)) {
        held_.add(alert);
    }
}

void ToolScreens::leave() {
    if (self().presentingViewController()) {
        self().dismiss(animated, ui::ViewController::Completion::from(
                                     [this, kept = objc::Strong(self())] { showHeld(); }));
    } else {
        showHeld();
    }
}

/// One after the other, each over the one before.
void ToolScreens::showHeld() {
    if (held_.count() == 0) {
        return;
    }
    const objc::Strong<ui::ViewController> screen = held_.first().assume<ui::ViewController>();
    held_.removeIdentical(screen);
    presentSheet(
        screen, topViewController(),
        ui::ViewController::Completion::from([this, kept = objc::Strong(self())] { showHeld(); }));
}

ui::View ToolScreens::newScreen() {
    const auto screen = ui::ViewController::make();
    objc::associate<"webViewController">(screen, self(), objc::Association::retainNonatomic);
    screen.view().setBackgroundColor(ui::Color::systemBackground());
    screen_ = screen;
    return screen.view();
}

void ToolScreens::addCloseButton(ns::String title, double lift) {
    const ui::View view = ui::ViewController(screen_).view();
    const CGSize size = view.bounds().size;
    const ButtonLook look{.title = title,
                          .frame = {{size.width / 2 - 45, size.height - 20 - lift}, {90, 40}},
                          .titleColor = ui::Color::black(), // the tint is hard to read on grey
                          .background = ui::Color::lightGray(),
                          .cornerRadius = 6};
    closeButton_ = makeButton(look, self(), objc::selector<"closeButtonPressed:">());
    view.addSubview(closeButton_);
}

void ToolScreens::showPage(ns::Url url) {
    if (!url) {
        return;
    }
    constexpr double top = 10;
    constexpr double height = 710;
    constexpr double lift = 155;
    const double width = ui::Screen::mainScreen().bounds().size.width;
    const auto page = wk::WebView::withFrame({{0, top}, {width, height}});
    page.load(ns::UrlRequest::withUrl(url));
    newScreen().addSubview(page);
    addCloseButton(u"关闭网页"_ns, lift);
    showScreen();
}

void ToolScreens::close(objc::Object /*sender*/) { ui::ViewController(screen_).dismiss(animated); }

} // namespace wentra::utilities
