// Edits and the platform's undo manager.
#include "desktop/uikit/text/text_history.hpp"

namespace desktop {

ns::UndoManager TextHistory::manager() {
    if (!manager_) {
        manager_ = ns::UndoManager::make();
        manager_.setGroupsByEvent(false);
    }
    return manager_;
}

void TextHistory::add(objc::Object view, unsigned long place, ns::AttributedString former,
                      unsigned long length) {
    const bool isInsertion = former.length() == 0;
    if ((isInsertion && length == 0) || (isInsertion && addToTyped(place, length))) {
        return;
    }
    const auto edit = TextEditKind::make();
    TextEdit::of(edit).range = {place, length};
    TextEdit::of(edit).text = former;
    manager().beginUndoGrouping();
    manager().registerUndo(view, objc::selector<"_takeBack:">(), edit);
    manager().endUndoGrouping();
    typed_ = length > 0 ? edit : nullptr;
}

bool TextHistory::addToTyped(unsigned long place, unsigned long length) {
    if (!typed_) {
        return false;
    }
    ns::Range& typed = TextEdit::of(typed_).range;
    const bool goesOn = typed.location + typed.length == place;
    typed.length += goesOn ? length : 0;
    return goesOn;
}

void TextHistory::forget() {
    pause();
    manager_.removeAllActions();
}

} // namespace desktop
