// Passing on what is typed.
#include "desktop/uikit/keyboard/keyboard_input.hpp"

#include "bindings/objc/pool.hpp"
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

void insertCharacter(ui::Responder responder, ns::String character) {
    TextInput* input = TextInput::find(responder);
    if (character.isEqualToString(u"\n"_ns) && input != nullptr) {
        input->pressReturn();
    } else if (input != nullptr) {
        input->type(character);
    } else {
        ui::TextInput(responder).insertText(character);
    }
}

} // namespace

bool insertText(ns::String text) {
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

bool deleteBackward() {
    const objc::Strong<ui::Responder> kept = receiver();
    if (TextInput* input = TextInput::find(kept); input != nullptr) {
        input->erase();
    } else {
        ui::TextInput(kept).deleteBackward();
    }
    return static_cast<bool>(kept);
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
