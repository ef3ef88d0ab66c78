// The rule set where it lives: nine dictionaries in the host's own user defaults.
#pragma once

#include "bindings/foundation/user_defaults.hpp"
#include "library/labels/rule_set.hpp"

#include <optional>
#include <string_view>

namespace wentra::labels {

/// The stored rules of one kind, as they are at this moment: a view, good for one look-up after the
/// other. Entries that are not of the expected type count as absent.
class StoredRules {
public:
    StoredRules(ns::UserDefaults defaults, RuleKind kind);

    /// Whether there are any, which spares making keys to look up.
    explicit operator bool() const { return static_cast<bool>(map_); }

    /// The rule's value as text, or nil.
    [[nodiscard]] ns::String text(ns::String key) const;
    /// The rule's value as a number (0 for text that is none); nothing without a rule.
    [[nodiscard]] std::optional<double> number(ns::String key) const;

private:
    ns::Dictionary map_;
};

/// The whole stored rule set, for the editor's list.
RuleSet storedRuleSet();

/// Stores each kind that has rules, replacing that kind's stored rules as a whole, and flushes the
/// defaults. A kind without rules stays as it was stored: the editor cannot clear a kind.
void storeRuleSet(const RuleSet& rules);

/// What the editor does on saving: reads the rules out of its text and stores them.
void saveRuleText(std::u16string_view editorText);

/// Stores one text rule beside the others, and flushes the defaults. Line breaks are written as
/// "↲" in both.
void storeTextRule(std::u16string_view text, std::u16string_view replacement);

/// Removes the first text rule, in no particular order, that shows this text, and flushes the
/// defaults. It is looked up by what is shown because that is what the user has before him.
void removeTextRuleShowing(std::u16string_view replacement);

} // namespace wentra::labels
