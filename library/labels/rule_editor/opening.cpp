// How the rule editor comes up: by a long press on its host.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/layout_item.hpp"
#include "bindings/uikit/text_attributes.hpp"
#include "library/common/gestures.hpp"
#include "library/common/light_background.hpp"
#include "library/common/outline.hpp"
#include "library/labels/rule_editor/editor_buttons.hpp"
#include "library/labels/rule_editor/host_keeper.hpp"
#include "library/labels/rule_text.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::labels {
namespace {

constexpr double pressDuration = 0.5;

void attach(ui::View host) {
    if (host.gestureRecognizers().count() > 0) {
        return;
    }
    addPress(host, host, objc::selector<"handleLongPress33:">(), pressDuration);
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
    const auto preferences = preferences::Preferences::read();
    const RuleSpacing spacing = preferences.on(preferences::keys.spacedRules)
                                    ? RuleSpacing::blankLines
                                    : RuleSpacing::consecutiveLines;
    const auto text = ns::MutableAttributedString::make();
    text.append(
        styled(helpText, ui::Color::red().withAlphaComponent(0.7), ui::Font::boldSystem(12.6)));
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
    applyEditorLook(editor);
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
    addPan(editor, host, objc::selector<"handleDrag:">());
    addPinch(editor, host, objc::selector<"zerkpinchGesture:">());
    addTap(editor, host, objc::selector<"zerkhandleDoubleTap:">(), 2);
    addTap(editor, host, objc::selector<"handleTap:">());
}

bool hasTextView(ui::View host) {
    for (const ui::View view : host.subviews()) {
        if (view.as<ui::TextView>()) {
            return true;
        }
    }
    return false;
}

void open(ui::View host, ui::GestureRecognizer press) {
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
    keepHostWhileOpen(host, editor);
}

} // namespace

void applyEditorLook(ui::View view) {
    setLightBackground(view, ui::Color::white());
    view.setClipsToBounds(true);
    drawOutline(view, {6, 2.5, ui::Color::blue().withAlphaComponent(0.4)});
}

std::span<const objc::Change> editorOpening() {
    static constexpr std::array changes{
        objc::addition<"attachLongPressHandler33", &attach>(),
        objc::addition<"handleLongPress33:", &open>(),
    };
    return changes;
}

} // namespace wentra::labels
