// What the rule editor's buttons do to the text, the caret and the page.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/text_input.hpp"
#include "bindings/uikit/text_storage.hpp"
#include "library/common/notice.hpp"
#include "library/labels/rule_editor/editor_text.hpp"
#include "library/preferences/preferences.hpp"

#include <algorithm>
#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;
using objc::Object;

/// Moves the caret by lines, unless it is at that end of the text already.
void moveCaret(ui::TextView editor, ui::LayoutDirection direction) {
    const ui::TextInput input(editor);
    const long lines = preferences::Preferences::read().on(preferences::keys.moveFiveLines) ? 5 : 1;
    const ui::TextPosition caret = input.selectedTextRange().start();
    const ui::TextPosition end =
        direction == ui::LayoutDirection::up ? input.beginningOfDocument() : input.endOfDocument();
    if (!caret || input.offset(caret, end) == 0) {
        return;
    }
    const ui::TextPosition moved = input.position(caret, direction, lines);
    const ui::TextPosition target = moved ? moved : end;
    input.setSelectedTextRange(input.range(target, target));
}

void moveUp(ui::View host, Object) { moveCaret(inputTextView(host), ui::LayoutDirection::up); }
void moveDown(ui::View host, Object) { moveCaret(inputTextView(host), ui::LayoutDirection::down); }

void scrollTo(ui::TextView editor, double top) {
    editor.setContentOffset({editor.contentOffset().x, top});
}

void pageUp(ui::View host, Object) {
    const ui::TextView editor = inputTextView(host);
    scrollTo(editor, previousPage(editor.contentOffset().y, editor.bounds().size.height));
}

void pageDown(ui::View host, Object) {
    const ui::TextView editor = inputTextView(host);
    scrollTo(editor, nextPage(editor.contentOffset().y, editor.bounds().size.height,
                              editor.contentSize().height));
}

template <RuleKind Kind>
void insertMarker(ui::View host, Object) {
    insertRule(host, Kind, nullptr);
}

void deleteLines(ui::View host, Object) {
    const ui::TextView editor = inputTextView(host);
    const ns::Range lines = linesOf(editor.text().utf16(), editor.selectedRange());
    editor.textStorage().replace(lines, u""_ns);
    editor.setSelectedRange({lines.location, 0});
}

void exportText(ui::View host, Object) {
    const ui::TextView editor = inputTextView(host);
    ui::Pasteboard::generalPasteboard().setString(
        ns::String::from(withoutHelp(editor.text().utf16())));
    constexpr double seconds = 1.5;
    showNotice(editor.window(), u"所有内容已经复制到剪贴板！"_ns, {.height = 0.5}, seconds);
}

} // namespace

void insertRule(ui::View host, RuleKind kind, ns::String value) {
    const ui::TextView editor = inputTextView(host);
    const unsigned long caret = std::min(editor.selectedRange().location, editor.text().length());
    const std::u16string text = std::u16string(ruleKindNames(kind).marker) + value.utf16();
    editor.textStorage().replace({caret, 0}, ns::String::from(text));
    editor.setSelectedRange({caret + text.size(), 0});
}

std::span<const objc::Change> editorCommands() {
    static constexpr std::array changes{
        objc::addition<"moveCursorUp:", &moveUp>(),
        objc::addition<"moveCursorDown:", &moveDown>(),
        objc::addition<"prevPage:", &pageUp>(),
        objc::addition<"nextPage:", &pageDown>(),
        objc::addition<"tmdtj:", &insertMarker<RuleKind::alpha>>(),
        objc::addition<"equalButtonPressed:", &insertMarker<RuleKind::text>>(),
        objc::addition<"dxButtonPressed:", &insertMarker<RuleKind::size>>(),
        objc::addition<"hxButtonPressed:", &insertMarker<RuleKind::horizontal>>(),
        objc::addition<"zxButtonPressed:", &insertMarker<RuleKind::vertical>>(),
        objc::addition<"gdButtonPressed:", &insertMarker<RuleKind::height>>(),
        objc::addition<"kdButtonPressed:", &insertMarker<RuleKind::width>>(),
        objc::addition<"deleteRowButtonPressed:", &deleteLines>(),
        objc::addition<"exportButtonPressed:", &exportText>(),
    };
    return changes;
}

} // namespace wentra::labels
