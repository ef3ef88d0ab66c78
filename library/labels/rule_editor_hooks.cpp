// Layout of the rule editor's containers. The long press is not there yet: calls pass through.
#include "library/labels/rule_editor_hooks.hpp"

#include "bindings/uikit/text_view.hpp"
#include "library/labels/stored_rules.hpp"

#include <array>

namespace wentra::labels {
namespace {

void saveRules(ui::View, ui::TextView editor) {
    saveRuleText(editor.text().utf16());
    editor.removeFromSuperview();
}

void laidOut(objc::Next<void()> next, ui::View) { next(); }

} // namespace

std::span<const objc::Change> ruleEditorCategory() {
    static constexpr std::array changes{
        objc::addition<"UIView", "saveRulesFromTextView:", &saveRules>(),
    };
    return changes;
}

std::span<const objc::Change> containerHooks() {
    static constexpr std::array changes{
        objc::hook<"UIStackView", "layoutSubviews", &laidOut>(),
        objc::hook<"AWELeftSideBarCollectionReusableView", "layoutSubviews", &laidOut>(),
        objc::hook<"T1TimelineNavigationController", "layoutSubviews", &laidOut>(),
        objc::hook<"UINavigationBar", "layoutSubviews", &laidOut>(),
    };
    return changes;
}

std::span<const objc::Change> cameraHooks() {
    static constexpr std::array changes{
        objc::hook<"XCamera.XHContentView", "layoutSubviews", &laidOut>(),
    };
    return changes;
}

} // namespace wentra::labels
