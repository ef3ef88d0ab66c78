// The editor's text form of label rules: one rule a line, below a help text that shows how.
#pragma once

#include "library/labels/rule_set.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace wentra::labels {

/// What the editor shows above the rules; its own examples are rules too, never listed below it.
inline constexpr std::u16string_view helpText =
    u"\n"
    u"悬浮文本替换器,长按可输入或拖动窗口,双指捏合,双击缩放。在文本替换中↲代表换行。\n"
    u"\n"
    u"文本替换：hello===你好\n"
    u"文本颜色：hello#=ff0000\n"
    u"文本大小：hello#÷=16\n"
    u"文本高度：hello#g=16\n"
    u"文本宽度：hello#k=16\n"
    u"文本X值：hello#x=16\n"
    u"文本Y值：hello#y=16\n"
    u"文本透明：hello#t=0.1\n"
    u"文本字体：hello#z=AINile-Bold\n"
    u"\n"
    u"换行即可继续输入，点确定或4次换行保存且关闭弹窗。\n";

/// Whether an empty line follows each listed rule.
enum class RuleSpacing : std::uint8_t { consecutiveLines, blankLines };

/// Reads UTF-16 text, one rule a line: key, marker, value. Lines end at "\n" only; a line without a
/// marker, or with its kind's marker more than once, is ignored. A later line replaces the value an
/// earlier one gave to the same key. Key and value may be empty.
RuleSet parseRules(std::u16string_view text);

/// Writes each rule as a line that `parseRules` reads back, kind by kind in `listingOrder`; rules
/// equal to an example of `helpText` are left out.
std::u16string listRules(const RuleSet& rules, RuleSpacing spacing);

/// What the editor opens with: `helpText` and the listed rules.
std::u16string editorText(const RuleSet& rules, RuleSpacing spacing);

} // namespace wentra::labels
