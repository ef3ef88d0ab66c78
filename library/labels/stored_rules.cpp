// Reading and writing the rule maps of the user defaults.
#include "library/labels/stored_rules.hpp"

#include "bindings/foundation/number.hpp"
#include "library/labels/rule_text.hpp"
#include "library/labels/text_replacement.hpp"

namespace wentra::labels {
namespace {

using namespace ns::literals;

/// The defaults keys as constant strings, so that the hooks need not make them at each label.
ns::String defaultsKey(RuleKind kind) {
    static const std::array keys = [] {
        std::array<objc::Strong<ns::String>, ruleKindCount> made;
        for (const RuleKind each : storingOrder) {
            made[ruleKindIndex(each)] = ns::String::from(ruleKindNames(each).defaultsKey);
        }
        return made;
    }();
    return keys[ruleKindIndex(kind)];
}

/// A copy of the stored map, empty when there is none, to be changed and stored back.
ns::MutableDictionary mutableMap(RuleKind kind) {
    const auto map = ns::MutableDictionary::make();
    if (const auto stored = ns::UserDefaults::standardUserDefaults().dictionary(defaultsKey(kind));
        stored) {
        map.addEntries(stored);
    }
    return map;
}

void storeMap(RuleKind kind, ns::Dictionary map) {
    const auto defaults = ns::UserDefaults::standardUserDefaults();
    defaults.set(map, defaultsKey(kind));
    defaults.synchronize();
}

} // namespace

StoredRules::StoredRules(ns::UserDefaults defaults, RuleKind kind)
    : map_(defaults.dictionary(defaultsKey(kind))) {}

ns::String StoredRules::text(ns::String key) const { return map_.get(key).as<ns::String>(); }

std::optional<double> StoredRules::number(ns::String key) const {
    const objc::Object value = map_.get(key);
    if (const auto text = value.as<ns::String>(); text) {
        return text.floatValue();
    }
    if (const auto number = value.as<ns::Number>(); number) {
        return number.floatValue();
    }
    return std::nullopt;
}

RuleSet storedRuleSet() {
    const auto defaults = ns::UserDefaults::standardUserDefaults();
    RuleSet rules;
    for (const RuleKind kind : listingOrder) {
        const StoredRules stored(defaults, kind);
        const auto map = defaults.dictionary(defaultsKey(kind));
        for (const objc::Object entry : map.allKeys()) {
            const auto key = entry.as<ns::String>();
            if (const ns::String value = stored.text(key); key && value) {
                rules[kind].assign(key.utf16(), value.utf16());
            }
        }
    }
    return rules;
}

void storeRuleSet(const RuleSet& rules) {
    const auto defaults = ns::UserDefaults::standardUserDefaults();
    for (const RuleKind kind : storingOrder) {
        const auto map = ns::MutableDictionary::make();
        for (const Rule& rule : rules[kind]) {
            map.set(ns::String::from(rule.value), ns::String::from(rule.key));
        }
        if (!rules[kind].empty()) {
            defaults.set(map, defaultsKey(kind));
        }
    }
    defaults.synchronize();
}

void saveRuleText(std::u16string_view editorText) { storeRuleSet(parseRules(editorText)); }

void storeTextRule(std::u16string_view text, std::u16string_view replacement) {
    const auto map = mutableMap(RuleKind::text);
    map.set(ns::String::from(withLineBreakSigns(replacement)),
            ns::String::from(withLineBreakSigns(text)));
    storeMap(RuleKind::text, map);
}

void removeTextRuleShowing(std::u16string_view replacement) {
    const auto map = mutableMap(RuleKind::text);
    const auto shown = ns::String::from(withLineBreakSigns(replacement));
    for (const objc::Object key : map.allKeys()) {
        if (map.get(key).isEqual(shown)) {
            map.remove(key);
            break;
        }
    }
    storeMap(RuleKind::text, map);
}

} // namespace wentra::labels
