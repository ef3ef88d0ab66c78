// The search: every occurrence of a keyword turns orange.
#include "library/labels/rule_editor/keyword_search.hpp"

#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/text_attributes.hpp"
#include "library/common/screens.hpp"
#include "library/labels/rule_editor/editor.hpp"

#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;

void highlight(ui::View host, ns::String keyword) {
    const ui::TextView editor = inputTextView(host);
    const ns::String text = editor.text();
    const auto coloured = ns::MutableAttributedString::make<"initWithString:">(text);
    for (const ns::Range range : occurrences(text, keyword)) {
        coloured.addAttribute(ui::attributes::foregroundColor(), ui::Color::orange(), range);
    }
    editor.setAttributedText(coloured);
}

void ask(ui::View host, objc::Object) {
    const auto alert =
        ui::AlertController::with(u"关键词"_ns, u"请输入要搜索的关键词"_ns, ui::AlertStyle::alert);
    alert.addTextField({});
    const auto field = alert.textFields().first().assume<ui::TextField>();
    const auto search = [kept = objc::Strong(host), keyword = objc::Strong(field)](
                            ui::AlertAction) { kept.send<"highlightKeyword:">(keyword.text()); };
    alert.addAction(ui::AlertAction::with(u"确定"_ns, ui::AlertActionStyle::normal,
                                          ui::AlertAction::Handler::from(search)));
    topViewController().present(alert, true);
}

} // namespace

std::vector<ns::Range> occurrences(ns::String text, ns::String keyword) {
    std::vector<ns::Range> found;
    if (!text || keyword.length() == 0) {
        return found;
    }
    ns::Range rest{0, text.length()};
    while (const auto range = text.findIgnoringCase(keyword, rest)) {
        found.push_back(*range);
        const unsigned long end = range->location + range->length;
        rest = {end, text.length() - end};
    }
    return found;
}

std::span<const objc::Change> keywordSearch() {
    static constexpr std::array changes{
        objc::addition<"UIView", "searchButtonPressed:", &ask>(),
        objc::addition<"UIView", "highlightKeyword:", &highlight>(),
    };
    return changes;
}

} // namespace wentra::labels
