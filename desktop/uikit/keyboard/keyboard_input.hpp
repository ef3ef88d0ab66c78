// What a person does on a keyboard, whatever keyboard it is: it reaches the first responder.
#pragma once

#include "bindings/foundation/range.hpp"
#include "bindings/foundation/string.hpp"

namespace desktop::keyboard_input {

/// These give false when there is no first responder that takes text, and do nothing then. The
/// responder's delegate may refuse or change what is written. Main thread.

/// Writes the text at the caret, in place of what is selected or being composed, character by
/// character as people know characters.
bool insertText(ns::String text);
/// Shows text that is not finished, such as the letters of a Chinese word, in place of what was
/// shown so far; `selected` is in UTF-16 units from its start. Empty text takes it away.
bool setMarkedText(ns::String text, ns::Range selected);
/// Keeps the unfinished text as it is.
bool unmarkText();
/// Deletes what is selected, or the character before the caret.
bool deleteBackward();
/// A new line, or the end of input in a field of one line.
bool pressReturn();
/// Takes the keyboard away, with the focus.
bool hide();

} // namespace desktop::keyboard_input
