// The panel, and its report.
#include "library/utilities/panels/symbol_counter.hpp"

#include "library/utilities/panels/symbol_counts.hpp"

namespace wentra::utilities {

using namespace ns::literals;

void SymbolCounter::show() {
    const ui::View panel = screens_.newScreen();
    input_ = addPanelText(panel, {365, 200}, -340);
    output_ = addPanelText(panel, {365, 380}, -10);
    addPanelButton(panel, u"统计"_ns, {0, -219.2}, self(),
                   objc::selector<"countSpecialCharacters:">());
    addPanelCloser(screens_);
    screens_.showScreen();
}

void SymbolCounter::count(objc::Object /*sender*/) {
    output_.setText(ns::String::from(symbolReport(input_.text().utf16())));
}

} // namespace wentra::utilities
