// The frame rules.
#include "library/labels/label_style.hpp"

#include <array>

namespace wentra::labels {
namespace {

/// A rule that changes one component of the frame.
struct FrameRule {
    RuleKind kind;
    preferences::Switch key;
    void (*change)(CGRect& frame, double value);
};

constexpr std::array frameRules{
    FrameRule{RuleKind::height, preferences::keys.changeHeight,
              [](CGRect& frame, double value) { frame.size.height = value; }},
    FrameRule{RuleKind::width, preferences::keys.changeWidth,
              [](CGRect& frame, double value) { frame.size.width = value; }},
    FrameRule{RuleKind::horizontal, preferences::keys.moveHorizontally,
              [](CGRect& frame, double value) { frame.origin.x = value; }},
    FrameRule{RuleKind::vertical, preferences::keys.moveVertically,
              [](CGRect& frame, double value) { frame.origin.y = value; }},
};

} // namespace

void applyFrameRules(ui::View label, const AskedText& asked) {
    for (const FrameRule& rule : frameRules) {
        if (!asked.on(rule.key)) {
            continue;
        }
        if (const auto value = asked.rules(rule.kind).number(asked.text); value) {
            CGRect frame = label.frame();
            rule.change(frame, *value);
            label.setFrame(frame);
        }
    }
    if (asked.on(preferences::keys.changeAlpha)) {
        if (const auto alpha = asked.rules(RuleKind::alpha).number(asked.text); alpha) {
            label.setAlpha(*alpha);
        }
    }
}

} // namespace wentra::labels
