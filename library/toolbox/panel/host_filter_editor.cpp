// A text over the whole screen, with a button to save it and one to close it.
#include "library/toolbox/panel/host_filter_editor.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/keyboard.hpp"
#include "library/common/animated.hpp"
#include "library/common/buttons.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preference_writing.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/panel/buttons.hpp"
#include "library/toolbox/panel/host_screens.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

ui::TextView addText(ui::View view) {
    constexpr double top = 90;
    constexpr double otherHeight = 150; // above and below the text
    constexpr double textSize = 14;
    const CGSize size = view.bounds().size;
    const auto text = ui::TextView::withFrame({{0, top}, {size.width, size.height - otherHeight}});
    text.setFont(ui::Font::system(textSize));
    text.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    text.setText(
        ns::String::from(preferences::Preferences::read().text(preferences::keys.blockedHosts[0])));
    view.addSubview(text);
    return text;
}

/// `half`: 0 left, 1 right.
void addButton(ui::View view, double half, ButtonLook look, objc::Object target, SEL action) {
    constexpr double top = 45;
    constexpr double height = 45;
    constexpr double shade = 0.95;
    const double width = view.bounds().size.width / 2;
    look.frame = {{half * width, top}, {width, height}};
    const auto button = makeButton(look, target, action);
    styleButton(button, ButtonTone::usual, shade);
    view.addSubview(button);
}

/// A word in the middle of the view that fades after a while.
void notify(ui::View view) {
    constexpr double textSize = 22;
    constexpr CGSize size{120, 50};
    constexpr double shown = 3; // seconds
    constexpr double secondsToFade = 0.3;
    const auto notice = ui::Label::withFrame({{}, size});
    notice.setText(u"已保存"_ns);
    notice.setFont(ui::Font::system(textSize));
    notice.setTextColor(ui::Color::green());
    notice.setTextAlignment(ui::TextAlignment::center);
    const CGSize room = view.bounds().size;
    notice.setCenter({room.width / 2, room.height / 2});
    view.addSubview(notice);
    dispatch::after(shown, dispatch::mainQueue(), [kept = objc::Strong(notice)] {
        ui::View::animate(secondsToFade, ui::View::Changes::from([kept] { kept.setAlpha(0); }),
                          ui::View::Completion::from([kept](bool) { kept.removeFromSuperview(); }));
    });
}

} // namespace

void HostFilterEditor::open(ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto screen = ui::ViewController::make();
    screen.setModalPresentationStyle(ui::ModalPresentation::overFullScreen);
    const ui::View view = screen.view();
    view.setBackgroundColor(ui::Color::systemBackground());
    text_ = addText(view);
    addButton(view, 0, {.title = u"保存内容"_ns, .symbol = u"checkmark.square"_ns}, self(),
              objc::selector<"saveContent:">());
    addButton(view, 1, {.title = u"关闭窗口"_ns, .symbol = u"chevron.down.square"_ns}, self(),
              objc::selector<"close1ButtonPressed:">());
    presentOverHost(self(), screen);
}

void HostFilterEditor::save(objc::Object) {
    if (!text_) {
        return;
    }
    const ns::String text = text_.text();
    if (preferences::storePreference(preferences::keys.blockedHosts[0], text ? text : u""_ns)) {
        notify(text_.superview());
    }
}

void HostFilterEditor::close(objc::Object) {
    const ui::Responder screen = text_.superview().nextResponder();
    screen.as<ui::ViewController>().dismiss(animated);
    text_ = nullptr;
}

void HostFilterEditor::keyboardAppears(ns::Notification notification) {
    keepClear(text_, keyWindow(), self(), notification);
}

void HostFilterEditor::keyboardDisappears(ns::Notification) {
    UIEdgeInsets insets = text_.contentInset();
    insets.bottom = 0;
    setInsets(text_, insets);
}

} // namespace wentra::toolbox
