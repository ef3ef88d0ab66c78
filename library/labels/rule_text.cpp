// Reads rules from the editor's text and writes them back.
#include "library/labels/rule_text.hpp"

#include "library/common/text_parts.hpp"

#include <algorithm>

namespace wentra::labels {
namespace {

void parseLine(std::u16string_view line, RuleSet& rules) {
    const auto kind = std::ranges::find_if(recognitionOrder, [line](RuleKind candidate) {
        return line.find(ruleKindNames(candidate).marker) != line.npos;
    });
    if (kind == recognitionOrder.end()) {
        return;
    }
    const std::u16string_view marker = ruleKindNames(*kind).marker;
    const std::size_t keyEnd = line.find(marker);
    const std::u16string_view value = line.substr(keyEnd + marker.size());
    if (value.find(marker) == value.npos) {
        rules[*kind].assign(line.substr(0, keyEnd), value);
    }
}

const RuleSet& helpExamples() {
    static const RuleSet examples = parseRules(helpText);
    return examples;
}

bool isHelpExample(RuleKind kind, const Rule& rule) {
    const std::u16string* value = helpExamples()[kind].find(rule.key);
    return value != nullptr && *value == rule.value;
}

} // namespace

RuleSet parseRules(std::u16string_view text) {
    RuleSet rules;
    for (const auto line : split(text, u'\n')) {
        parseLine(line, rules);
    }
    return rules;
}

std::u16string listRules(const RuleSet& rules, RuleSpacing spacing) {
    const std::u16string_view ending = spacing == RuleSpacing::blankLines ? u"\n\n" : u"\n";
    std::u16string listing;
    for (const RuleKind kind : listingOrder) {
        for (const Rule& rule : rules[kind]) {
            if (isHelpExample(kind, rule)) {
                continue;
            }
            listing.append(rule.key).append(ruleKindNames(kind).marker);
            listing.append(rule.value).append(ending);
        }
    }
    return listing;
}

std::u16string editorText(const RuleSet& rules, RuleSpacing spacing) {
    return std::u16string(helpText) + listRules(rules, spacing);
}

} // namespace wentra::labels
