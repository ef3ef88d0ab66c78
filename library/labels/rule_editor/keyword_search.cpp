// The search: every occurrence of a keyword turns orange.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/text_attributes.hpp"
#include "library/common/alert.hpp"
#include "library/common/case_insensitive_search.hpp"

#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;

void highlight(ui::View host, ns::String keyword) {
    const ui::TextView editor = inputTextView(host);
    const ns::String text = editor.text();
    const auto coloured = ns::MutableAttributedString::make<"initWithString:">(text);
    for (const ns::Range range : occurrencesIgnoringCase(text, keyword)) {
        coloured.addAttribute(ui::attributes::foregroundColor(), ui::Color::orange(), range);
    }
    editor.setAttributedText(coloured);
}

void ask(ui::View host, objc::Object) {
    Alert(u"关键词"_ns, u"请输入要搜索的关键词"_ns)
        .field()
        .action(u"确定"_ns,
                [kept = objc::Strong(host)](ui::TextField keyword) {
                    kept.send<"highlightKeyword:">(keyword.text());
                })
        .present();
}

} // namespace

std::span<const objc::Change> keywordSearch() {
    static constexpr std::array changes{
        objc::addition<"searchButtonPressed:", &ask>(),
        objc::addition<"highlightKeyword:", &highlight>(),
    };
    return changes;
}

} // namespace wentra::labels
