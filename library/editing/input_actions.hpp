// The commands that text views and text fields have in common. Each does nothing without a selected
// range, where it takes one; what it was before, on every responder, does nothing and is not
// called.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "bindings/objc/next.hpp"
#include "bindings/uikit/text_input.hpp"
#include "bindings/uikit/view.hpp"
#include "library/common/notice.hpp"

namespace wentra::editing {

/// Gives what the former initialiser makes a voice of its own.
objc::Object withSynthesizer(objc::Next<objc::Object(CGRect)> next, ui::View view, CGRect frame);
/// The library's own setter has kept the synthesizer already.
void keepSynthesizer(objc::Next<void(objc::Object)> next, ui::View view, objc::Object synthesizer);

void selectAllText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void deleteSelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void copySelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void pasteText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void cutSelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void shareSelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void translateSelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);
void romanizeSelectedText(objc::Next<void(objc::Object)>, ui::View view, objc::Object sender);

/// Selects all of the view's text, writes it to the pasteboard and says so at that place.
void selectAllAndCopy(ui::View view, ns::String text, const NoticePlace& place);

/// Says something to the user for a moment, in the middle of the view's window.
void showToast(ui::View view, ns::String message, const NoticePlace& place);

/// Whether the range is of at least one character.
[[nodiscard]] bool isSpan(ui::TextInput input, ui::TextRange range);

/// Reads the text aloud with the view's synthesizer, in place of what it is saying. A view without
/// one stays silent.
void readAloud(ui::View view, ns::String text);

} // namespace wentra::editing
