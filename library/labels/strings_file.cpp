// Finds the entries of a strings file in one pass, as a lazy regular expression would.
#include "library/labels/strings_file.hpp"

#include "library/common/white_space.hpp"
#include "library/labels/rule_kind.hpp"

#include <algorithm>
#include <optional>

namespace wentra::labels {
namespace {

struct Entry {
    std::u16string_view before;
    std::u16string_view key;
    std::u16string_view value;
    std::u16string_view after;
};

// Where the first quotation mark of a line cannot start an entry, no later one can: it would see
// only a tail of the separators and closings the first one saw.
std::optional<Entry> firstEntry(std::u16string_view line) {
    constexpr std::u16string_view separator = u"\"=\"";
    constexpr std::u16string_view closing = u"\";";

    const std::size_t start = line.find(u'"');
    if (start == line.npos) {
        return std::nullopt;
    }
    const std::size_t keyStart = start + 1;
    const std::size_t keyEnd = line.find(separator, keyStart);
    if (keyEnd == line.npos) {
        return std::nullopt;
    }
    const std::size_t valueStart = keyEnd + separator.size();
    const std::size_t valueEnd = line.find(closing, valueStart);
    if (valueEnd == line.npos) {
        return std::nullopt;
    }
    return Entry{line.substr(0, start), line.substr(keyStart, keyEnd - keyStart),
                 line.substr(valueStart, valueEnd - valueStart),
                 line.substr(valueEnd + closing.size())};
}

void convertLine(std::u16string_view line, std::u16string& converted) {
    while (const std::optional<Entry> entry = firstEntry(line)) {
        converted.append(entry->before).append(entry->key);
        converted.append(ruleKindNames(RuleKind::text).marker).append(entry->value);
        line = entry->after;
    }
    converted.append(line);
}

} // namespace

std::u16string convertStringsFile(std::u16string_view text) {
    std::u16string converted;
    converted.reserve(text.size());
    while (!text.empty()) {
        const auto terminator = std::ranges::find_if(text, isNewline);
        const auto length = static_cast<std::size_t>(terminator - text.begin());
        convertLine(text.substr(0, length), converted);
        if (length < text.size()) {
            converted.push_back(text[length]);
        }
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return converted;
}

} // namespace wentra::labels
