// Keeps the rules of one kind in order, with an index from key to place.
#include "library/labels/rule_set.hpp"

namespace wentra::labels {

void RuleMap::assign(std::u16string_view key, std::u16string_view value) {
    if (const auto found = positions_.find(key); found != positions_.end()) {
        rules_[found->second].value = value;
        return;
    }
    positions_.emplace(key, rules_.size());
    rules_.push_back({std::u16string(key), std::u16string(value)});
}

const std::u16string* RuleMap::find(std::u16string_view key) const {
    const auto found = positions_.find(key);
    return found == positions_.end() ? nullptr : &rules_[found->second].value;
}

} // namespace wentra::labels
