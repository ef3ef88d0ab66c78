// Counting tokens, and the counts' labels.
#include "library/toolbox/grid/statistics.hpp"

#include "library/preferences/preferences.hpp"

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

void tell(ui::Label label, std::u16string_view what, unsigned long count) {
    std::array<char, std::numeric_limits<unsigned long>::digits10 + 1> digits{};
    const char* const first = digits.data();
    const char* const end = std::to_chars(digits.begin(), digits.end(), count).ptr;
    std::u16string text(what);
    text.append(first, end);
    label.setText(ns::String::from(text));
}

} // namespace

ui::Label Statistics::added(CGPoint origin, double width) const {
    constexpr double height = 20;
    constexpr double textSize = 12; // beside the buttons of the last row
    const auto label = ui::Label::withFrame({origin, {width, height}});
    label.setFont(ui::Font::system(textSize));
    self().view().addSubview(label);
    return label;
}

void Statistics::add(double totalsTop, double selectionsTop) {
    constexpr double left = 15;
    constexpr double right = 225;
    constexpr double totalWidth = 180;
    constexpr double selectedWidth = 230;
    totalWords_ = added({left, totalsTop}, totalWidth);
    totalSymbols_ = added({right, totalsTop}, totalWidth);
    // Its left end lies under a button.
    totalSymbols_.setTextAlignment(ui::TextAlignment::center);
    selectedWords_ = added({left, selectionsTop}, selectedWidth);
    selectedSymbols_ = added({right, selectionsTop}, selectedWidth);
}

const TextCounts& Statistics::totals() {
    if (counted_ != tiles_.tokens()) {
        counted_ = tiles_.tokens();
        totals_ = countsOf(counted_);
    }
    return totals_;
}

void Statistics::update() {
    if (!preferences::Preferences::read().on(preferences::keys.countUses)) {
        return;
    }
    const TextCounts& whole = totals();
    const TextCounts picked = countsOf(selection_.tokens());
    tell(totalWords_, u"总文字数量：", whole.words);
    tell(totalSymbols_, u"总符号数量：", whole.symbols);
    tell(selectedWords_, u"选中的文字数量：", picked.words);
    tell(selectedSymbols_, u"选中的符号数量：", picked.symbols);
}

} // namespace wentra::toolbox
