// Passing on what is typed.
#include "desktop/uikit/keyboard/keyboard_input.hpp"

#include "bindings/foundation/undo_manager.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "desktop/drawing/text_boundaries.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/text/text_input.hpp"

#include <algorithm>

namespace desktop::keyboard_input {
namespace {

using namespace ns::literals;

/// The first responder, if its application is in front and it takes text. One of the application's
/// own takes it by UIKeyInput.
ui::Responder receiver() {
    if (!Foreground::shared().hasApplication()) {
        return nullptr;
    }
    const ui::Responder first = first_responder::current();
    return first && first.respondsToSelector(objc::selector<"insertText:">()) ? first : nullptr;
}

ns::UndoManager history() {
    const ui::Responder first = receiver();
    return first.respondsToSelector(objc::selector<"undoManager">())
               ? first.send<"undoManager", ns::UndoManager>()
               : nullptr;
}

void insertWhole(ui::Responder responder, ns::String text) {
    if (TextInput* input = TextInput::find(responder); input != nullptr) {
        input->type(text);
    } else {
        ui::TextInput(responder).insertText(text);
    }
}

void insertCharacter(ui::Responder responder, ns::String character) {
    TextInput* input = TextInput::find(responder);
    if (character.isEqualToString(u"\n"_ns) && input != nullptr) {
        input->pressReturn();
    } else {
        insertWhole(responder, character);
    }
}

} // namespace

bool insertText(ns::String text) {
    const objc::Strong<ui::Responder> kept = receiver();
    if (kept) {
        insertWhole(kept, text);
    }
    return static_cast<bool>(kept);
}

bool typeText(ns::String text) {
    if (!receiver()) {
        return false;
    }
    std::size_t start = 0;
    for (const std::size_t end : composedCharacterEnds(text.utf16())) {
        const objc::Pool pool;
        const objc::Strong<ui::Responder> kept = receiver();
        if (!kept) {
            break; // what was written first has taken the focus away
        }
        insertCharacter(
            kept, text.send<"substringWithRange:", ns::String>(ns::Range{start, end - start}));
        start = end;
    }
    return true;
}

bool setMarkedText(ns::String text, ns::Range selected) {
    const objc::Strong<ui::Responder> kept = receiver();
    if (TextInput* input = TextInput::find(kept); input != nullptr) {
        input->compose(text, selected);
    } else if (kept && kept.respondsToSelector(objc::selector<"setMarkedText:selectedRange:">())) {
        kept.send<"setMarkedText:selectedRange:">(text, selected);
    }
    return static_cast<bool>(kept);
}

bool unmarkText() {
    const objc::Strong<ui::Responder> kept = receiver();
    if (kept && kept.respondsToSelector(objc::selector<"unmarkText">())) {
        kept.send<"unmarkText">();
    }
    return static_cast<bool>(kept);
}

bool erase(TextMovement to) {
    const objc::Strong<ui::Responder> kept = receiver();
    if (TextInput* input = TextInput::find(kept); input != nullptr) {
        input->erase(to);
    } else if (to == TextMovement::left) {
        ui::TextInput(kept).deleteBackward();
    }
    return static_cast<bool>(kept);
}

bool move(TextMovement movement, bool extends) {
    const objc::Strong<ui::Responder> kept = receiver();
    if (TextInput* input = TextInput::find(kept); input != nullptr) {
        input->move(movement, extends);
    }
    return static_cast<bool>(kept);
}

bool perform(SEL action) {
    const objc::Strong<ui::Responder> target =
        first_responder::current().targetForAction(action, nullptr);
    if (target) {
        ui::MenuController::sharedMenuController().hideMenu();
        objc::sendTo(target.raw(), action, objc::Object());
    }
    return static_cast<bool>(target);
}

bool undo() {
    const objc::Strong<ns::UndoManager> manager = history();
    const bool can = manager.canUndo();
    if (can) {
        manager.undo();
    }
    return can;
}

bool redo() {
    const objc::Strong<ns::UndoManager> manager = history();
    const bool can = manager.canRedo();
    if (can) {
        manager.redo();
    }
    return can;
}

bool pressReturn() {
    const objc::Strong<ui::Responder> kept = receiver();
    if (kept) {
        insertCharacter(kept, u"\n"_ns);
    }
    return static_cast<bool>(kept);
}

bool hide() {
    const objc::Strong<ui::Responder> kept = receiver();
    kept.resignFirstResponder();
    return static_cast<bool>(kept);
}

} // namespace desktop::keyboard_input
