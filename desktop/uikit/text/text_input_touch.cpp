// Fingers on text: placing the caret, selecting a word, calling the edit menu.
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/text/text_input.hpp"

namespace desktop {

void TextInput::addRecognizers() {
    const ui::View view = this->view();
    const auto twice = ui::GestureRecognizer::with<ui::TapGestureRecognizer>(
        view, objc::selector<"_textDoubleTapped:">());
    twice.setNumberOfTapsRequired(2);
    const auto once = ui::GestureRecognizer::with<ui::TapGestureRecognizer>(
        view, objc::selector<"_textTapped:">());
    const auto longer = ui::GestureRecognizer::with<ui::LongPressGestureRecognizer>(
        view, objc::selector<"_textPressed:">());
    for (const ui::GestureRecognizer recognizer :
         std::initializer_list<ui::GestureRecognizer>{twice, once, longer}) {
        recognizer.setDelegate(view);
        GestureRecognizer::of(recognizer).belongsToView = true;
        view.addGestureRecognizer(recognizer);
    }
}

/// What is on the text, such as a clear button, has its touches for itself.
bool TextInput::receives(ui::GestureRecognizer, ui::Touch touch) const {
    return touch.view() == view();
}

bool TextInput::focus() { return view().becomeFirstResponder(); }

void TextInput::tapped(ui::GestureRecognizer tap) {
    const objc::Strong<ui::View> kept = view();
    const bool hadFocus = first_responder::current() == kept;
    if (!isEditable() && !hadFocus) {
        return; // read, and selected only by a longer touch
    }
    const unsigned long unit = unitAt(tap.locationIn(kept));
    if (!focus()) {
        return;
    }
    const bool again = hadFocus && selection_ == ns::Range{unit, 0};
    moveCaret(unit);
    const auto menu = ui::MenuController::sharedMenuController();
    if (again && isEditable() && !menu.isMenuVisible()) {
        showMenu();
    } else {
        menu.hideMenu();
    }
}

void TextInput::doubleTapped(ui::GestureRecognizer tap) {
    const objc::Strong<ui::View> kept = view();
    const unsigned long unit = unitAt(tap.locationIn(kept));
    if (isSelectable() && focus()) {
        moveCaret(unit);
        kept.send<"select:">(objc::Object());
        showMenu();
    }
}

void TextInput::pressed(ui::GestureRecognizer press) {
    const objc::Strong<ui::View> kept = view();
    const unsigned long unit = unitAt(press.locationIn(kept));
    switch (press.state()) {
    case ui::GestureState::began:
    case ui::GestureState::changed:
        if (isSelectable() && focus()) {
            moveCaret(unit);
            if (!isEditable()) {
                kept.send<"select:">(objc::Object());
            }
        }
        break;
    case ui::GestureState::ended:
        if (first_responder::current() == kept) {
            showMenu();
        }
        break;
    default:
        break;
    }
}

void TextInput::showMenu() {
    view().layoutIfNeeded();
    CGRect target = boundingRect(selection_);
    target.origin.y -= TextSelectionView::pinHead; // the pins stay in sight
    target.size.height += 2 * TextSelectionView::pinHead;
    ui::MenuController::sharedMenuController().showMenu(view(), target);
}

} // namespace desktop
