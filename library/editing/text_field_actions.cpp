// The commands of text fields. They are offered finding and jumping, too, which do nothing in a
// line.
#include "bindings/uikit/text_field.hpp"
#include "library/editing/edit_menu.hpp"
#include "library/editing/input_actions.hpp"
#include "library/editing/text_actions.hpp"

#include <array>

namespace wentra::editing {
namespace {

using objc::Next;
using objc::Object;

void addComment(Next<void(Object)>, ui::TextField field, Object) {
    const ui::TextInput input(field);
    if (const ui::TextRange range = input.selectedTextRange(); isSpan(input, range)) {
        input.replace(range, ns::String::from(u"/*\n" + input.textIn(range).utf16() + u"\n*/"));
    }
}

void storeAll(Next<void(Object)>, ui::TextField field, Object) {
    constexpr NoticePlace toastPlace{.left = 135, .above = 20};
    selectAllAndCopy(field, field.text(), toastPlace);
}

void readSelection(Next<void(Object)>, ui::TextField field, Object) {
    const ui::TextInput input(field);
    if (const ui::TextRange range = input.selectedTextRange(); isSpan(input, range)) {
        readAloud(field, input.textIn(range));
    }
}

} // namespace

std::span<const objc::Change> textFieldHooks() {
    static constexpr std::array changes{
        objc::hook<"UITextField", "canPerformAction:withSender:", &canPerformInText>(),
        objc::hook<"UITextField", "zkselectAllText:", &selectAllText>(),
        objc::hook<"UITextField", "pinyin:", &romanizeSelectedText>(),
        objc::hook<"UITextField", "Translatetext:", &translateSelectedText>(),
        objc::hook<"UITextField", "initWithFrame:", &withSynthesizer>(),
        objc::hook<"UITextField", "setSynth:", &keepSynthesizer>(),
        objc::hook<"Readingtext:", &readSelection>(),
        objc::hook<"addComment:", &addComment>(),
        objc::hook<"selectAllAndCopy:", &storeAll>(),
        objc::hook<"UITextField", "deleteSelectedText:", &deleteSelectedText>(),
        objc::hook<"UITextField", "copyText:", &copySelectedText>(),
        objc::hook<"UITextField", "pasteText:", &pasteText>(),
        objc::hook<"UITextField", "cutText:", &cutSelectedText>(),
        objc::hook<"UITextField", "shareText:", &shareSelectedText>(),
    };
    return changes;
}

} // namespace wentra::editing
