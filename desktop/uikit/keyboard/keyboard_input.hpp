// What a person does on a keyboard, whatever keyboard it is: it reaches the first responder.
#pragma once

#include "bindings/foundation/range.hpp"
#include "bindings/foundation/string.hpp"
#include "desktop/uikit/text/text_movement.hpp"

namespace desktop::keyboard_input {

/// These give false when there is no first responder that takes text, and do nothing then. The
/// responder's delegate may refuse or change what is written. Main thread.

/// Writes the text at the caret, in place of what is selected or being composed.
bool insertText(ns::String text);
/// The same, character by character as people know characters; a line break is the return key.
bool typeText(ns::String text);
/// Shows text that is not finished, such as the letters of a Chinese word, in place of what was
/// shown so far; `selected` is in UTF-16 units from its start. Empty text takes it away.
bool setMarkedText(ns::String text, ns::Range selected);
/// Keeps the unfinished text as it is.
bool unmarkText();
/// Deletes what is selected, or what lies between the caret and there: the character before it,
/// usually.
bool erase(TextMovement to = TextMovement::left);
/// Moves the caret of a text view or field, or the loose end of its selection.
bool move(TextMovement movement, bool extends);
/// These take back what was done to the text, and do it again; false when there is nothing.
bool undo();
bool redo();
/// Sends one of the editing actions, such as `copy:`; false when nobody up from the first responder
/// can do it now.
bool perform(SEL action);
/// A new line, or the end of input in a field of one line.
bool pressReturn();
/// Takes the keyboard away, with the focus.
bool hide();

} // namespace desktop::keyboard_input
