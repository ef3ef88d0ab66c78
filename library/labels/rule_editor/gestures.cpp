// Gestures on the rule editor's text view.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "bindings/uikit/text_input.hpp"
#include "library/common/draggable_view.hpp"
#include "library/labels/rule_editor/editor_text.hpp"

#include <array>

namespace wentra::labels {
namespace {

void drag(ui::View, ui::PanGestureRecognizer pan) {
    moveAlong(pan.view(), pan, pan.view().superview());
}

void pinch(ui::View, ui::PinchGestureRecognizer pinch) { scaleAlong(pinch.view(), pinch); }

/// How many units of the text lie before the tap.
std::size_t positionOf(ui::TapGestureRecognizer tap, ui::TextView editor) {
    const ui::TextInput input(editor);
    const ui::TextPosition tapped = input.closestPosition(tap.locationIn(editor));
    return static_cast<std::size_t>(input.offset(input.beginningOfDocument(), tapped));
}

void doubleTap(ui::View host, ui::TapGestureRecognizer tap) {
    constexpr double duration = 0.5;
    const ui::TextView editor = inputTextView(host);
    if (editor.isFirstResponder()) {
        editor.setSelectedRange(wordAt(editor.text().utf16(), positionOf(tap, editor)));
    } else {
        ui::View::animate(duration, ui::View::Changes::from(
                                        [kept = objc::Strong(editor)] { kept.setTransform({}); }));
    }
}

void tap(ui::View host, ui::TapGestureRecognizer tap) {
    const ui::TextView editor = inputTextView(host);
    editor.setSelectedRange({positionOf(tap, editor), 0});
}

} // namespace

std::span<const objc::Change> editorGestures() {
    static constexpr std::array changes{
        objc::addition<"handleDrag:", &drag>(),
        objc::addition<"zerkpinchGesture:", &pinch>(),
        objc::addition<"zerkhandleDoubleTap:", &doubleTap>(),
        objc::addition<"handleTap:", &tap>(),
    };
    return changes;
}

} // namespace wentra::labels
