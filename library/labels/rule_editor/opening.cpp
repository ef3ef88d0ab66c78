// How the rule editor comes up: by a long press on its host.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/layout_anchor.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "bindings/uikit/text_attributes.hpp"
#include "library/labels/rule_editor/editor_buttons.hpp"
#include "library/labels/rule_text.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/startup/preferences.hpp"

#include <array>

namespace wentra::labels {
namespace {

using ui::GestureRecognizer;

constexpr double pressDuration = 0.5;

void attach(ui::View host) {
    if (host.gestureRecognizers().count() > 0) {
        return;
    }
    const auto press = GestureRecognizer::with<ui::LongPressGestureRecognizer>(
        host, objc::selector<"handleLongPress33:">());
    press.setMinimumPressDuration(pressDuration);
    host.addGestureRecognizer(press);
}

ns::AttributedString styled(std::u16string_view text, ui::Color color, ui::Font font) {
    const auto attributes = ns::MutableDictionary::make();
    attributes.set(color, ui::attributes::foregroundColor());
    if (font) {
        attributes.set(font, ui::attributes::font());
    }
    return ns::AttributedString::with(ns::String::from(text), attributes);
}

/// The help and below it the stored rules.
ns::AttributedString openingText() {
    const auto preferences = startup::Preferences::read();
    const RuleSpacing spacing = preferences.on(startup::keys.spacedRules)
                                    ? RuleSpacing::blankLines
                                    : RuleSpacing::consecutiveLines;
    const auto text = ns::MutableAttributedString::make();
    text.append(styled(helpText, ui::Color::red().withAlpha(0.7), ui::Font::boldSystem(12.6)));
    text.append(styled(listRules(storedRuleSet(), spacing), ui::Color::darkGray(), nullptr));
    return text;
}

ui::TextView makeTextView(ui::View host) {
    constexpr double besideText = 6;
    const auto editor = ui::TextView::withFrame({});
    editor.setAttributedText(openingText());
    editor.setDelegate(host);
    editor.setEditable(true);
    editor.setSelectable(true);
    editor.setTextContainerInset({15, besideText, besideText, besideText});
    makeCard(editor);
    return editor;
}

void place(ui::TextView editor, ui::Window window) {
    constexpr double sideways = 55;
    constexpr double above = 36;
    constexpr double below = 100;
    const auto safe = ui::LayoutItem::safeAreaOf(window);
    const auto text = ui::constrained(editor);
    text.leading().equalTo(safe.leading(), sideways).activate();
    text.trailing().equalTo(safe.trailing(), -sideways).activate();
    text.top().equalTo(safe.top(), above).activate();
    text.bottom().equalTo(safe.bottom(), -below).activate();
}

void addGestures(ui::View host, ui::TextView editor) {
    editor.addGestureRecognizer(
        GestureRecognizer::with<ui::PanGestureRecognizer>(host, objc::selector<"handleDrag:">()));
    editor.addGestureRecognizer(GestureRecognizer::with<ui::PinchGestureRecognizer>(
        host, objc::selector<"zerkpinchGesture:">()));
    const auto doubleTap = GestureRecognizer::with<ui::TapGestureRecognizer>(
        host, objc::selector<"zerkhandleDoubleTap:">());
    doubleTap.setNumberOfTapsRequired(2);
    editor.addGestureRecognizer(doubleTap);
    editor.addGestureRecognizer(
        GestureRecognizer::with<ui::TapGestureRecognizer>(host, objc::selector<"handleTap:">()));
}

bool hasTextView(ui::View host) {
    for (const objc::Object view : host.subviews()) {
        if (view.as<ui::TextView>()) {
            return true;
        }
    }
    return false;
}

void open(ui::View host, GestureRecognizer press) {
    const ui::Window window = host.window();
    if (press.state() != ui::GestureState::began || hasTextView(host) || !window) {
        return;
    }
    const ui::TextView editor = makeTextView(host);
    setInputTextView(host, editor);
    window.addSubview(editor);
    place(editor, window);
    addEditorButtons(host, editor);
    addGestures(host, editor);
    addFontPicker(host, editor);
}

} // namespace

void makeCard(ui::View view) {
    view.setBackgroundColor(ui::Color::white());
    view.setClipsToBounds(true);
    const ca::Layer layer = view.layer();
    layer.setCornerRadius(6);
    layer.setBorderColor(ui::Color::blue().withAlpha(0.4).cgColor());
    layer.setBorderWidth(2.5);
}

std::span<const objc::Change> editorOpening() {
    static constexpr std::array changes{
        objc::addition<"UIView", "attachLongPressHandler33", &attach>(),
        objc::addition<"UIView", "handleLongPress33:", &open>(),
    };
    return changes;
}

} // namespace wentra::labels
