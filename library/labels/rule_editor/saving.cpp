// How the rule editor's text becomes rules, and the editor goes.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/button.hpp"
#include "library/common/screens.hpp"
#include "library/labels/rule_editor/editor_text.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/labels/strings_file.hpp"
#include "library/labels/term_correction.hpp"
#include "library/startup/preferences.hpp"

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
    const bool corrects = startup::Preferences::read().on(startup::keys.correctTerms);
    return corrects ? correctTerms(rules) : rules;
}

void save(ui::View host, objc::Object) {
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
        host.send<"saveRulesFromTextView:">(editor);
        removeEditor(host);
    }
}

} // namespace

void removeEditor(ui::View host) {
    for (const objc::Object each : keyWindow().subviews().copied()) {
        if (const auto view = each.assume<ui::View>();
            each.as<ui::TextView>() || each.as<ui::Button>()) {
            view.removeFromSuperview();
        }
    }
    fontPickerView(host).removeFromSuperview();
}

std::span<const objc::Change> editorSaving() {
    static constexpr std::array changes{
        objc::addition<"UIView", "saveRulesFromTextView:", &saveRules>(),
        objc::addition<"UIView", "savePressed:", &save>(),
        objc::addition<"UIView", "textViewDidChange:", &textChanged>(),
    };
    return changes;
}

} // namespace wentra::labels
