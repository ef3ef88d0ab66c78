// Feeds arbitrary UTF-16 to the label rules and compares them with slow, obvious versions.
#include "library/common/white_space.hpp"
#include "library/labels/colour_text.hpp"
#include "library/labels/rule_text.hpp"
#include "library/labels/strings_file.hpp"
#include "library/labels/term_correction.hpp"
#include "library/labels/text_replacement.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace wentra::labels;
using wentra::isNewline;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool startsAt(std::u16string_view text, std::size_t position, std::u16string_view part) {
    return text.substr(std::min(position, text.size())).starts_with(part);
}

// Splits as a person would: unit by unit, skipping over each separator found.
std::vector<std::u16string> parts(std::u16string_view text, std::u16string_view separator) {
    std::vector<std::u16string> found(1);
    for (std::size_t i = 0; i < text.size();) {
        if (startsAt(text, i, separator)) {
            found.emplace_back();
            i += separator.size();
        } else {
            found.back().push_back(text[i++]);
        }
    }
    return found;
}

std::u16string replaceAll(std::u16string_view text, std::u16string_view from,
                          std::u16string_view to) {
    std::u16string joined;
    for (const std::u16string& part : parts(text, from)) {
        joined.append(part).append(to);
    }
    joined.resize(joined.size() - to.size());
    return joined;
}

using RuleValues = std::map<std::u16string, std::u16string>;

std::map<RuleKind, RuleValues> obviousRules(std::u16string_view text) {
    std::map<RuleKind, RuleValues> rules;
    for (const std::u16string& line : parts(text, u"\n")) {
        for (const RuleKind kind : recognitionOrder) {
            const auto found = parts(line, ruleKindNames(kind).marker);
            if (found.size() == 1) {
                continue;
            }
            if (found.size() == 2) {
                rules[kind][found[0]] = found[1];
            }
            break;
        }
    }
    return rules;
}

bool containsHelpExample(const RuleSet& rules) {
    const RuleSet examples = parseRules(helpText);
    return std::ranges::any_of(listingOrder, [&](RuleKind kind) {
        const Rule& example = *examples[kind].begin();
        const std::u16string* value = rules[kind].find(example.key);
        return value != nullptr && *value == example.value;
    });
}

void checkRules(std::u16string_view text) {
    const RuleSet rules = parseRules(text);
    auto expected = obviousRules(text);
    for (const RuleKind kind : listingOrder) {
        require(rules[kind].size() == expected[kind].size());
        for (const Rule& rule : rules[kind]) {
            require(expected[kind].contains(rule.key) && expected[kind][rule.key] == rule.value);
        }
    }
    if (containsHelpExample(rules)) {
        return;
    }
    for (const RuleSpacing spacing : {RuleSpacing::consecutiveLines, RuleSpacing::blankLines}) {
        require(parseRules(listRules(rules, spacing)) == rules);
    }
}

// Tries every start, then every end of the key, then every end of the value, shortest first.
std::optional<std::u16string> obviousMatch(std::u16string_view text, std::size_t& position) {
    if (!startsAt(text, position, u"\"")) {
        return std::nullopt;
    }
    const std::size_t keyStart = position + 1;
    for (std::size_t keyEnd = keyStart; keyEnd < text.size(); ++keyEnd) {
        const std::size_t valueStart = keyEnd + 3;
        for (std::size_t valueEnd = valueStart;
             startsAt(text, keyEnd, u"\"=\"") && valueEnd < text.size(); ++valueEnd) {
            if (startsAt(text, valueEnd, u"\";")) {
                position = valueEnd + 2;
                return std::u16string(text.substr(keyStart, keyEnd - keyStart)) + u"===" +
                       std::u16string(text.substr(valueStart, valueEnd - valueStart));
            }
            if (isNewline(text[valueEnd])) {
                break;
            }
        }
        if (isNewline(text[keyEnd])) {
            break;
        }
    }
    return std::nullopt;
}

void checkStringsFile(std::u16string_view text) {
    std::u16string expected;
    for (std::size_t i = 0; i < text.size();) {
        if (const auto match = obviousMatch(text, i)) {
            expected.append(*match);
        } else {
            expected.push_back(text[i++]);
        }
    }
    require(convertStringsFile(text) == expected);
}

void checkTerms(std::u16string_view text) {
    const std::u16string corrected = correctTerms(text);
    for (const std::u16string_view gone : {u"LPM", u"呼吸", u"支架", u"空白", u"😄", u"违约"}) {
        require(corrected.find(gone) == corrected.npos);
    }
    // No term holds a line break, so lines are corrected independently.
    std::u16string byLine;
    for (const std::u16string& line : parts(text, u"\n")) {
        byLine.append(correctTerms(line)).append(u"\n");
    }
    require(byLine == corrected + u"\n");
}

// The first line of the input is what a label is given; the other lines hold the rules.
void checkReplacement(std::u16string_view text) {
    RuleValues rules = obviousRules(text)[RuleKind::text];
    const std::u16string given = replaceAll(parts(text, u"\n").front(), u"\r", u"\n");

    std::u16string shown = given;
    const std::u16string prefix = parts(given, u":").front();
    if (prefix.size() < given.size() && std::ranges::none_of(prefix, isNewline) &&
        rules.contains(prefix)) {
        shown = rules[prefix] + given.substr(prefix.size());
    }
    const std::u16string key = replaceAll(shown, u"\n", u"↲");
    shown = replaceAll(rules.contains(key) ? rules[key] : key, u"↲", u"\n");

    const auto replaced =
        replacedText(given, [&](std::u16string_view wanted) -> std::optional<std::u16string> {
            const auto found = rules.find(std::u16string(wanted));
            return found == rules.end() ? std::nullopt : std::optional(found->second);
        });
    require(replaced.value_or(given) == shown);
    require(replaced.has_value() == (shown != given));
}

void checkColour(std::u16string_view text) {
    const auto expected = parts(text, u"-");
    const ColourText parsed = parseColourText(text);
    require(parsed.colour == expected[0]);
    require(parsed.alpha.has_value() == (expected.size() > 1));
    require(!parsed.alpha || *parsed.alpha == expected[1]);
    require(hexColour(parsed.colour).has_value() ==
            (parsed.colour.size() == 6 || startsAt(parsed.colour, 0, u"#")));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::u16string text(size / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), bytes, text.size() * sizeof(char16_t));
    checkRules(text);
    checkStringsFile(text);
    checkTerms(text);
    checkReplacement(text);
    checkColour(text);
    return 0;
}
