// The commands of text views.
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/alert.hpp"
#include "library/common/animated.hpp"
#include "library/editing/edit_menu.hpp"
#include "library/editing/input_actions.hpp"
#include "library/editing/text_actions.hpp"

#include <algorithm>
#include <array>

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;

constexpr NoticePlace toastPlace{.left = 130, .above = 60};

/// The part of the range that lies in a text of that length.
ns::Range within(ns::Range range, unsigned long length) {
    const unsigned long start = std::min(range.location, length);
    return {start, std::min(range.length, length - start)};
}

void addCommentInView(Next<void(Object)>, ui::TextView view, Object) {
    std::u16string text = view.text().utf16();
    const ns::Range selected = within(view.selectedRange(), text.size());
    if (selected.length == 0) {
        return;
    }
    const std::u16string comment =
        u"\n/*\n" + text.substr(selected.location, selected.length) + u"\n*/\n";
    text.replace(selected.location, selected.length, comment);
    view.setText(ns::String::from(text));
    view.setSelectedRange({selected.location, comment.size()});
}

void storeAllOfView(Next<void(Object)>, ui::TextView view, Object) {
    selectAllAndCopy(view, view.text(), toastPlace);
}

void showSearchAlert(Next<void(Object)>, ui::TextView view, Object) {
    const auto find = [view = objc::Strong(view)](ui::TextField field) {
        view.send<"highlightAndScrollToText:">(field.text());
    };
    Alert(u"查找文本"_ns)
        .field(u"输入想搜索的文本"_ns, nullptr, ui::TextFieldViewMode::whileEditing)
        .action(u"确定"_ns, find)
        .action(u"取消"_ns)
        .presentFrom(view.window().rootViewController());
}

/// In red, in the middle of the view.
void highlight(ui::TextView view, ns::Range found) {
    view.textStorage().addAttribute(ui::attributes::foregroundColor(), ui::Color::red(), found);
    const CGRect place = view.layoutManager().boundingRect(found, view.textContainer());
    view.setContentOffset({0, place.origin.y - view.bounds().size.height / 2}, animated);
}

void find(Next<void(ns::String)>, ui::TextView view, ns::String sought) {
    const ns::String text = view.text();
    const ns::Range whole{0, text.length()};
    // New characters look like the first one that they replace: so what was highlighted before is
    // not any more, unless it stood at the start.
    view.textStorage().replace({0, view.textStorage().length()}, text);
    const auto found = sought ? text.rangeOf(sought, {}, whole) : std::nullopt;
    if (found) {
        highlight(view, *found);
    } else {
        showToast(view, u"QF：未找到文本内容❗️"_ns, toastPlace);
    }
}

void scrollToBeginning(Next<void(Object)>, ui::TextView view, Object) {
    view.scrollRangeToVisible({0, 0});
}

void scrollToEnd(Next<void(Object)>, ui::TextView view, Object) {
    view.scrollRangeToVisible({view.text().length(), 0});
}

void readSelectionInView(Next<void(Object)>, ui::TextView view, Object) {
    const std::u16string text = view.text().utf16();
    const ns::Range selected = within(view.selectedRange(), text.size());
    if (selected.length > 0) {
        readAloud(view, ns::String::from(
                            std::u16string_view(text).substr(selected.location, selected.length)));
    }
}

} // namespace

std::span<const objc::Change> textViewHooks() {
    static constexpr std::array changes{
        objc::hook<"UITextView", "canPerformAction:withSender:", &canPerformInText>(),
        objc::hook<"UITextView", "zkselectAllText:", &selectAllText>(),
        objc::hook<"UITextView", "pinyin:", &romanizeSelectedText>(),
        objc::hook<"UITextView", "Translatetext:", &translateSelectedText>(),
        objc::hook<"UITextView", "initWithFrame:", &withSynthesizer>(),
        objc::hook<"UITextView", "setSynth:", &keepSynthesizer>(),
        objc::hook<"Readingtext:", &readSelectionInView>(),
        objc::hook<"addComment:", &addCommentInView>(),
        objc::hook<"selectAllAndCopy:", &storeAllOfView>(),
        objc::hook<"UITextView", "deleteSelectedText:", &deleteSelectedText>(),
        objc::hook<"showSearchAlert:", &showSearchAlert>(),
        objc::hook<"highlightAndScrollToText:", &find>(),
        objc::hook<"UITextView", "copyText:", &copySelectedText>(),
        objc::hook<"UITextView", "pasteText:", &pasteText>(),
        objc::hook<"UITextView", "cutText:", &cutSelectedText>(),
        objc::hook<"UITextView", "shareText:", &shareSelectedText>(),
        objc::hook<"scrollToBeginning:", &scrollToBeginning>(),
        objc::hook<"scrollToEnd:", &scrollToEnd>(),
    };
    return changes;
}

} // namespace wentra::editing
