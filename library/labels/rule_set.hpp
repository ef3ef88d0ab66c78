// The rules of every kind, as string-to-string maps that keep the order their keys were first given
// in.
#pragma once

#include "library/labels/rule_kind.hpp"

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace wentra::labels {

/// One rule; key and value are UTF-16 and may be empty.
struct Rule {
    std::u16string key;
    std::u16string value;

    bool operator==(const Rule&) const = default;
};

/// Rules of one kind, one per key, enumerated in the order the keys were first assigned.
class RuleMap {
public:
    /// Sets the value of a key; a key that is present keeps its place and takes the new value.
    void assign(std::u16string_view key, std::u16string_view value);

    /// The value of a key, owned by the map and valid until the next `assign`; null when absent.
    const std::u16string* find(std::u16string_view key) const;

    auto begin() const { return rules_.begin(); }
    auto end() const { return rules_.end(); }
    std::size_t size() const { return rules_.size(); }
    bool empty() const { return rules_.empty(); }

    /// Equal when the same rules stand in the same order.
    bool operator==(const RuleMap& other) const { return rules_ == other.rules_; }

private:
    std::vector<Rule> rules_;
    std::map<std::u16string, std::size_t, std::less<>> positions_;
};

/// One `RuleMap` for each kind of rule.
class RuleSet {
public:
    RuleMap& operator[](RuleKind kind) { return maps_[ruleKindIndex(kind)]; }
    const RuleMap& operator[](RuleKind kind) const { return maps_[ruleKindIndex(kind)]; }

    bool operator==(const RuleSet&) const = default;

private:
    std::array<RuleMap, ruleKindCount> maps_;
};

} // namespace wentra::labels
