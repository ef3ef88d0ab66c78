// Label texts on their way to the platform: styled by the text that was asked for, then replaced.
#include "library/labels/label_text_hooks.hpp"

#include "bindings/applications/yy_label.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/label.hpp"
#include "library/labels/label_style.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/labels/text_replacement.hpp"

#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;

/// The value of the text rule with that key. The text that was asked for is looked up as the object
/// that it is: making another costs more than all the rest.
std::optional<std::u16string> textRule(const StoredRules& rules, std::u16string_view key,
                                       std::u16string_view units, ns::String text) {
    const ns::String value = rules.text(key == units ? text : ns::String::from(key));
    return value ? std::optional(value.utf16()) : std::nullopt;
}

/// The text that a label shows instead: `text` itself when no rule says otherwise.
ns::String replaced(const AskedText& asked) {
    const StoredRules rules = asked.rules(RuleKind::text);
    const std::u16string units = asked.text.utf16();
    const auto result = replacedText(units, [&](std::u16string_view key) {
        return rules ? textRule(rules, key, units, asked.text) : std::nullopt;
    });
    return result ? ns::String::from(*result) : asked.text;
}

/// Hosts do pass nil, and objects that are no strings; these are none of our business.
bool canBeRewritten(ns::String text) { return text.as<ns::String>() && text.length() > 0; }

/// A styling that fails costs the label that styling only.
template <class Styling>
void style(Styling styling) {
    objc::contained("a label's styling", styling);
}

void rewriteLabel(objc::Next<void(ns::String)> next, ui::Label label, ns::String text) {
    if (!canBeRewritten(text)) {
        next(text);
        return;
    }
    const objc::Pool pool; // a background thread may have none
    const AskedText asked{text};
    style([&] { applyColourRule(label, asked); });
    style([&] { applySizeRules(label, asked); });
    style([&] { applyFrameRules(label, asked); });
    style([&] { applyFontRules(label, asked); });
    next(replaced(asked));
}

void rewriteYYLabel(objc::Next<void(ns::String)> next, apps::YYLabel label, ns::String text) {
    if (!canBeRewritten(text)) {
        next(text);
        return;
    }
    const objc::Pool pool;
    const AskedText asked{text};
    style([&] { applyColourRule(label, asked); });
    style([&] { applyTextSizeRule(label, asked); });
    style([&] { applyFrameRules(label, asked); });
    style([&] { applyTextFontRule(label, asked); });
    next(replaced(asked));
}

/// One text is never shown by any label: it only makes the label's font small.
void withholdOneText(objc::Next<void(ns::String)> next, ui::Label label, ns::String text) {
    constexpr double smallSize = 10;
    const ns::String withheld = u"感谢逆向，没技术含量的插件。"_ns;
    // The lengths tell nearly all texts apart, at a small part of the price.
    if (text.as<ns::String>() && text.length() == withheld.length() &&
        text.isEqualToString(withheld)) {
        label.setFont(ui::Font::system(smallSize));
        return;
    }
    next(text);
}

} // namespace

std::span<const objc::Change> labelTextLoad() {
    static constexpr std::array changes{
        objc::exchange<"setText:", "hook_setText:", &rewriteLabel>(),
    };
    return changes;
}

std::span<const objc::Change> yyLabelTextLoad() {
    static constexpr std::array changes{
        objc::exchange<"setText:", "hook_setText:", &rewriteYYLabel>(),
    };
    return changes;
}

std::span<const objc::Change> labelTextHooks() {
    static constexpr std::array changes{
        objc::hook<"setText:", &withholdOneText>(),
    };
    return changes;
}

} // namespace wentra::labels
