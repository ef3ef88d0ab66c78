// The edit menu's entry points. The commands are not there yet: calls pass through.
#include "library/editing/edit_menu_hooks.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/uikit/view.hpp"

#include <array>

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;

void nothing(Object, Object) {}

Object synth(Object view) { return objc::associated<"synth">(view); }

void setSynth(Object view, Object synthesizer) {
    objc::associate<"synth">(view, synthesizer, objc::Association::retainNonatomic);
}

bool canBecome(Next<bool()> next, Object) { return next(); }

bool canPerform(Next<bool(SEL, Object)> next, Object, SEL action, Object sender) {
    return next(action, sender);
}

Object withFrame(Next<Object(CGRect)> next, Object, CGRect frame) { return next(frame); }

void command(Next<void(Object)> next, Object, Object argument) { next(argument); }

void updateMenu(Next<void()> next, Object) { next(); }

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

void observeMenu() {
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"UIMenuControllerWillShowMenuNotification"_ns, nullptr, ns::OperationQueue::mainQueue(),
        objc::Block<void(ns::Notification)>::from([](ns::Notification) {}));
}

std::span<const objc::Change> editMenuHooks() {
    static constexpr std::array changes{
        objc::hook<"UIResponder", "canBecomeFirstResponder", &canBecome>(),
        objc::hook<"UIResponder", "canPerformAction:withSender:", &canPerform>(),

        objc::hook<"UITextView", "canPerformAction:withSender:", &canPerform>(),
        objc::hook<"UITextView", "zkselectAllText:", &command>(),
        objc::hook<"UITextView", "pinyin:", &command>(),
        objc::hook<"UITextView", "Translatetext:", &command>(),
        objc::hook<"UITextView", "initWithFrame:", &withFrame>(),
        objc::hook<"UITextView", "setSynth:", &command>(),
        objc::hook<"UITextView", "Readingtext:", &command>(),
        objc::hook<"UITextView", "addComment:", &command>(),
        objc::hook<"UITextView", "selectAllAndCopy:", &command>(),
        objc::hook<"UITextView", "deleteSelectedText:", &command>(),
        objc::hook<"UITextView", "showSearchAlert:", &command>(),
        objc::hook<"UITextView", "highlightAndScrollToText:", &command>(),
        objc::hook<"UITextView", "copyText:", &command>(),
        objc::hook<"UITextView", "pasteText:", &command>(),
        objc::hook<"UITextView", "cutText:", &command>(),
        objc::hook<"UITextView", "shareText:", &command>(),
        objc::hook<"UITextView", "scrollToBeginning:", &command>(),
        objc::hook<"UITextView", "scrollToEnd:", &command>(),

        objc::hook<"UITextField", "canPerformAction:withSender:", &canPerform>(),
        objc::hook<"UITextField", "zkselectAllText:", &command>(),
        objc::hook<"UITextField", "pinyin:", &command>(),
        objc::hook<"UITextField", "Translatetext:", &command>(),
        objc::hook<"UITextField", "initWithFrame:", &withFrame>(),
        objc::hook<"UITextField", "setSynth:", &command>(),
        objc::hook<"UITextField", "Readingtext:", &command>(),
        objc::hook<"UITextField", "addComment:", &command>(),
        objc::hook<"UITextField", "selectAllAndCopy:", &command>(),
        objc::hook<"UITextField", "deleteSelectedText:", &command>(),
        objc::hook<"UITextField", "copyText:", &command>(),
        objc::hook<"UITextField", "pasteText:", &command>(),
        objc::hook<"UITextField", "cutText:", &command>(),
        objc::hook<"UITextField", "shareText:", &command>(),

        objc::hook<"UIMenuController", "update", &updateMenu>(),
    };
    return changes;
}

} // namespace wentra::editing
