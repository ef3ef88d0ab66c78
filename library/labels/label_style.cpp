// The frame rules.
#include "library/labels/label_style.hpp"

#include <array>

namespace wentra::labels {
namespace {

/// A rule that changes one component of the frame.
struct FrameRule {
    RuleKind kind;
    startup::Switch key;
    void (*change)(CGRect& frame, double value);
};

constexpr std::array frameRules{
    FrameRule{RuleKind::height, startup::keys.changeHeight,
              [](CGRect& frame, double value) { frame.size.height = value; }},
    FrameRule{RuleKind::width, startup::keys.changeWidth,
              [](CGRect& frame, double value) { frame.size.width = value; }},
    FrameRule{RuleKind::horizontal, startup::keys.moveHorizontally,
              [](CGRect& frame, double value) { frame.origin.x = value; }},
    FrameRule{RuleKind::vertical, startup::keys.moveVertically,
              [](CGRect& frame, double value) { frame.origin.y = value; }},
};

} // namespace

void applyFrameRules(ui::View label, ns::String text, const startup::Preferences& preferences) {
    for (const FrameRule& rule : frameRules) {
        if (!preferences.on(rule.key)) {
            continue;
        }
        if (const auto value = StoredRules(rule.kind).number(text); value) {
            CGRect frame = label.frame();
            rule.change(frame, *value);
            label.setFrame(frame);
        }
    }
    if (preferences.on(startup::keys.changeAlpha)) {
        if (const auto alpha = StoredRules(RuleKind::alpha).number(text); alpha) {
            label.setAlpha(*alpha);
        }
    }
}

} // namespace wentra::labels
