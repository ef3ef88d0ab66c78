// How the rule editor's text becomes rules, and the editor goes.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/button.hpp"
#include "library/common/screens.hpp"
#include "library/labels/rule_editor/editor_text.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/labels/strings_file.hpp"
#include "library/labels/term_correction.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::labels {
namespace {

void saveRules(ui::View, ui::TextView editor) {
    saveRuleText(editor.text().utf16());
    editor.removeFromSuperview();
}

/// The text as it is saved by the button: lines of strings files become rules, and wrong terms are
/// corrected when the user wants that.
std::u16string prepared(std::u16string_view text) {
    std::u16string rules = convertStringsFile(text);
    const bool corrects = preferences::Preferences::read().on(preferences::keys.correctTerms);
    return corrects ? correctTerms(rules) : rules;
}

void save(ui::View host, objc::Object) {
    const objc::Strong<ui::View> kept = host; // perhaps by the editor alone, which goes here
    for (const objc::Object view : keyWindow().subviews().copied()) {
        if (const auto editor = view.as<ui::TextView>(); editor) {
            editor.setText(ns::String::from(prepared(editor.text().utf16())));
            host.send<"saveRulesFromTextView:">(editor);
        }
    }
    removeEditor(host);
}

void textChanged(ui::View host, ui::TextView editor) {
    if (endsWithFourBreaks(editor.text().utf16())) {
        const objc::Strong<ui::View> kept = host; // perhaps by the editor alone, which goes here
        host.send<"saveRulesFromTextView:">(editor);
        removeEditor(host);
    }
}

} // namespace

void removeEditor(ui::View host) {
    for (const ui::View view : keyWindow().subviews().copied()) {
        if (view.as<ui::TextView>() || view.as<ui::Button>()) {
            view.removeFromSuperview();
        }
    }
    fontPickerView(host).removeFromSuperview();
}

std::span<const objc::Change> editorSaving() {
    static constexpr std::array changes{
        objc::addition<"saveRulesFromTextView:", &saveRules>(),
        objc::addition<"savePressed:", &save>(),
        objc::addition<"textViewDidChange:", &textChanged>(),
    };
    return changes;
}

} // namespace wentra::labels
