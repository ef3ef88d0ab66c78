// Changes the stored text rules and tells the user.
#include "library/toolbox/translation/replacing.hpp"

#include "library/common/notice.hpp"
#include "library/labels/stored_rules.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

void notify(ui::View over, ns::String text) {
    constexpr double seconds = 0.7;
    showNotice(over, text, {.height = 0.25}, seconds);
}

} // namespace

void replaceText(ns::String original, ns::String translated, ui::View over) {
    labels::storeTextRule(original.utf16(), translated.utf16());
    notify(over, u"替换成功,切屏查看结果。"_ns);
}

void restoreReplacedText(ns::String shown, ui::View over) {
    if (shown) {
        labels::removeTextRuleShowing(shown.utf16());
    }
    notify(over, u"删除词汇,已恢复默认❗️"_ns);
}

} // namespace wentra::toolbox
