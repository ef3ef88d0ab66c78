// The rule editor: what is added to UIView for it, and the parts that its files share.
#pragma once

#include "bindings/foundation/timer.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/uikit/picker_view.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/window.hpp"
#include "library/labels/rule_kind.hpp"

#include <span>

namespace wentra::labels {

// The editor belongs to the view whose long press opened it, its host: the host is target, delegate
// and data source of all its parts, and keeps them as properties. It lives for as long as the
// editor is open (`keepHostWhileOpen`), perhaps no longer. Main thread only.

/// The text view with the rules; nil before the editor was opened.
[[nodiscard]] ui::TextView inputTextView(ui::View host);
void setInputTextView(ui::View host, ui::TextView editor);

/// The list of font families, hidden most of the time.
[[nodiscard]] ui::PickerView fontPickerView(ui::View host);
void setFontPickerView(ui::View host, ui::PickerView picker);

/// The names in that list.
[[nodiscard]] ns::Array fontNames(ui::View host);
void setFontNames(ui::View host, ns::Array names);

/// The timer between the choice of a font and its insertion.
[[nodiscard]] ns::Timer pickerTimer(ui::View host);
void setPickerTimer(ui::View host, ns::Timer timer);

/// Inserts the kind's marker and the value (nil: none) before the selection, which stays in the
/// text, and puts the caret behind it.
void insertRule(ui::View host, RuleKind kind, ns::String value);

/// Takes the editor off the screen: every text view and every button that lies directly in the key
/// window, whoever put it there.
void removeEditor(ui::View host);

/// Gives a view the editor's look: white with a blue border and round corners.
void applyEditorLook(ui::View view);

/// Adds the hidden font picker to the text view's window, and fills it.
void addFontPicker(ui::View host, ui::TextView editor);

// What is added to UIView, by subject.

/// `inputTextView`, `fontPickerView`, `fontNames` and `timer`.
[[gnu::cold]] std::span<const objc::Change> editorProperties();
/// `attachLongPressHandler33` and `handleLongPress33:`.
[[gnu::cold]] std::span<const objc::Change> editorOpening();
/// `saveRulesFromTextView:`, `savePressed:` and `textViewDidChange:`.
[[gnu::cold]] std::span<const objc::Change> editorSaving();
/// What the other buttons do.
[[gnu::cold]] std::span<const objc::Change> editorCommands();
/// `handleDrag:`, `zerkpinchGesture:`, `zerkhandleDoubleTap:` and `handleTap:`.
[[gnu::cold]] std::span<const objc::Change> editorGestures();
/// The font picker's data source and delegate, and its timer's action.
[[gnu::cold]] std::span<const objc::Change> fontPicking();
/// The search for a keyword.
[[gnu::cold]] std::span<const objc::Change> keywordSearch();
/// The colour chooser.
[[gnu::cold]] std::span<const objc::Change> colourChoosing();

} // namespace wentra::labels
