// The commands' selectors on every responder, and the voices of text views and fields.
#include "bindings/objc/associated.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/editing/text_actions.hpp"

#include <array>

namespace wentra::editing {
namespace {

using objc::Object;

void nothing(Object, Object) {}

Object synth(Object view) { return objc::associated<"synth">(view); }

void setSynth(Object view, Object synthesizer) {
    objc::associate<"synth">(view, synthesizer, objc::Association::retainNonatomic);
}

} // namespace

std::span<const objc::Change> menuItemCategory() {
    static constexpr std::array changes{
        objc::addition<"UIResponder", "zkselectAllText:", &nothing>(),
        objc::addition<"UIResponder", "addComment:", &nothing>(),
        objc::addition<"UIResponder", "selectAllAndCopy:", &nothing>(),
        objc::addition<"UIResponder", "deleteSelectedText:", &nothing>(),
        objc::addition<"UIResponder", "showSearchAlert:", &nothing>(),
        objc::addition<"UIResponder", "highlightAndScrollToText:", &nothing>(),
        objc::addition<"UIResponder", "copyText:", &nothing>(),
        objc::addition<"UIResponder", "pasteText:", &nothing>(),
        objc::addition<"UIResponder", "pinyin:", &nothing>(),
        objc::addition<"UIResponder", "Readingtext:", &nothing>(),
        objc::addition<"UIResponder", "cutText:", &nothing>(),
        objc::addition<"UIResponder", "shareText:", &nothing>(),
        objc::addition<"UIResponder", "Translatetext:", &nothing>(),
        objc::addition<"UIResponder", "scrollToBeginning:", &nothing>(),
        objc::addition<"UIResponder", "scrollToEnd:", &nothing>(),
    };
    return changes;
}

std::span<const objc::Change> speechCategories() {
    static constexpr std::array changes{
        objc::addition<"UITextView", "synth", &synth>(),
        objc::addition<"UITextView", "setSynth:", &setSynth>(),
        objc::addition<"UITextField", "synth", &synth>(),
        objc::addition<"UITextField", "setSynth:", &setSynth>(),
    };
    return changes;
}

} // namespace wentra::editing
