// A text over the whole screen, with a button to save it and one to close it.
#include "library/toolbox/panel/host_filter_editor.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/startup/preference_writing.hpp"
#include "library/startup/preferences.hpp"
#include "library/toolbox/panel/buttons.hpp"
#include "library/toolbox/panel/host_screens.hpp"

#include <array>

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
    text.setAutoresizingMask(ui::autoresizing::flexibleWidth | ui::autoresizing::flexibleHeight);
    text.setText(
        ns::String::from(startup::Preferences::read().text(startup::keys.blockedHosts[0])));
    view.addSubview(text);
    return text;
}

struct EditorButton {
    ns::String title;
    ns::String symbol;
    SEL action;
};

/// `half`: 0 left, 1 right.
void addButton(ui::View view, double half, const EditorButton& row, objc::Object target) {
    constexpr double top = 45;
    constexpr double height = 45;
    constexpr double shade = 0.95;
    const double width = view.bounds().size.width / 2;
    const auto button = ui::Button::ofType(ui::ButtonType::system);
    button.setFrame({{half * width, top}, {width, height}});
    button.setTitle(row.title, ui::control_state::normal);
    button.setImage(ui::Image::systemNamed(row.symbol), ui::control_state::normal);
    styleButton(button, ButtonTone::usual, shade);
    button.addTarget(target, row.action, ui::control_events::touchUpInside);
    view.addSubview(button);
}

void open(FloatingViewController controller, ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto screen = ui::ViewController::make();
    screen.setModalPresentationStyle(ui::ModalPresentation::fullScreen);
    const ui::View view = screen.view();
    view.setBackgroundColor(ui::Color::systemBackground());
    controller.setAdstextView(addText(view));
    addButton(view, 0, {u"保存内容"_ns, u"checkmark.square"_ns, objc::selector<"saveContent:">()},
              controller);
    addButton(view, 1,
              {u"关闭窗口"_ns, u"chevron.down.square"_ns, objc::selector<"close1ButtonPressed:">()},
              controller);
    presentOverHost(controller, screen);
}

/// A word in the middle of the view that fades after a while.
void notify(ui::View view) {
    constexpr double textSize = 22;
    constexpr CGSize size{120, 50};
    constexpr std::int64_t shown = 3'000'000'000; // nanoseconds
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

void save(FloatingViewController controller, objc::Object) {
    const ui::TextView editor = controller.adstextView();
    if (!editor) {
        return;
    }
    const ns::String text = editor.text();
    startup::storePreference(u"Host过滤屏蔽"_ns, text ? text : u""_ns);
    notify(editor.superview());
}

void close(FloatingViewController controller, objc::Object) {
    constexpr bool animated = true;
    const ui::Responder screen = controller.adstextView().superview().nextResponder();
    screen.as<ui::ViewController>().dismiss(animated);
    controller.setAdstextView(nullptr);
}

} // namespace

std::span<const objc::Change> hostFilterEditorCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "longPressedStopRecordButton:", &open>(),
        objc::addition<"ZKFloatingViewController", "saveContent:", &save>(),
        objc::addition<"ZKFloatingViewController", "close1ButtonPressed:", &close>(),
    };
    return changes;
}

} // namespace wentra::toolbox
