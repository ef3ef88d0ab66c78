// Counting tokens, and the counts' labels.
#include "library/toolbox/grid/statistics.hpp"

#include "library/startup/preferences.hpp"
#include "library/toolbox/grid/text_counts.hpp"

#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace wentra::toolbox {
namespace {

TextCounts countsOf(ns::Array tokens) {
    TextCounts counts;
    for (const objc::Object token : tokens) {
        countUnits(token.as<ns::String>().utf16(), counts);
    }
    return counts;
}

/// The counts of the whole text, which stays the same while tiles are picked.
const TextCounts& totals(ns::Array tokens) {
    struct Counted {
        objc::Strong<ns::Array> tokens;
        TextCounts counts;
    };
    static auto* last = new Counted; // lives as long as the process
    if (last->tokens != tokens) {
        *last = {tokens, countsOf(tokens)};
    }
    return last->counts;
}

void tell(ui::Label label, std::u16string_view what, unsigned long count) {
    std::array<char, std::numeric_limits<unsigned long>::digits10 + 1> digits{};
    const char* const first = digits.data();
    const char* const end = std::to_chars(digits.begin(), digits.end(), count).ptr;
    std::u16string text(what);
    text.append(first, end);
    label.setText(ns::String::from(text));
}

} // namespace

void updateStatistics(FloatingViewController controller) {
    if (!startup::Preferences::read().on(startup::keys.countUses)) {
        return;
    }
    const TextCounts whole = totals(controller.wordsArray());
    const TextCounts picked = countsOf(controller.selectedWords());
    tell(controller.totalWordsLabel(), u"总文字数量：", whole.words);
    tell(controller.totalSymbolsLabel(), u"总符号数量：", whole.symbols);
    tell(controller.selectedWordsLabel(), u"选中的文字数量：", picked.words);
    tell(controller.selectedSymbolsLabel(), u"选中的符号数量：", picked.symbols);
}

std::span<const objc::Change> statisticsCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "updateStatistics", &updateStatistics>(),
    };
    return changes;
}

} // namespace wentra::toolbox
