// The commands over the selected text range.
#include "library/editing/input_actions.hpp"

#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/sharing.hpp"
#include "library/common/speaking.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;

ui::Pasteboard pasteboard() { return ui::Pasteboard::generalPasteboard(); }

/// Nil without a selected range.
ns::String selectedText(ui::View view) {
    const ui::TextInput input(view);
    const ui::TextRange range = input.selectedTextRange();
    return range ? input.textIn(range) : nullptr;
}

/// The first controller up the chain, or nil.
ui::ViewController controllerAround(ui::Responder responder) {
    while (responder && !responder.as<ui::ViewController>()) {
        responder = responder.nextResponder();
    }
    return responder.as<ui::ViewController>();
}

} // namespace

Object withSynthesizer(Next<Object(CGRect)> next, ui::View, CGRect frame) {
    const Object view = next(frame);
    if (view) {
        view.send<"setSynth:">(av::SpeechSynthesizer::make());
    }
    return view;
}

void keepSynthesizer(Next<void(Object)> next, ui::View, Object synthesizer) { next(synthesizer); }

void selectAllText(Next<void(Object)>, ui::View view, Object) {
    ui::TextInput(view).selectAll(nullptr);
}

void deleteSelectedText(Next<void(Object)>, ui::View view, Object) {
    const ui::TextInput input(view);
    if (const ui::TextRange range = input.selectedTextRange(); isSpan(input, range)) {
        input.replace(range, u""_ns);
    }
}

void copySelectedText(Next<void(Object)>, ui::View view, Object) {
    if (const ns::String text = selectedText(view); text) {
        pasteboard().setString(text);
    }
}

void pasteText(Next<void(Object)>, ui::View view, Object) {
    const ui::TextInput input(view);
    const ns::String text = pasteboard().string();
    if (const ui::TextRange range = input.selectedTextRange(); text && range) {
        input.replace(range, text);
    }
}

void cutSelectedText(Next<void(Object)> former, ui::View view, Object sender) {
    const ui::TextInput input(view);
    if (const ui::TextRange range = input.selectedTextRange(); range) {
        copySelectedText(former, view, sender);
        input.replace(range, u""_ns);
    }
}

void shareSelectedText(Next<void(Object)>, ui::View view, Object) {
    if (const ns::String text = selectedText(view); text) {
        share(text, controllerAround(view));
    }
}

void translateSelectedText(Next<void(Object)>, ui::View view, Object) {
    if (const ns::String text = selectedText(view); text) {
        toolbox::FloatingViewController::make().translateText(text);
    }
}

void romanizeSelectedText(Next<void(Object)>, ui::View view, Object) {
    if (const ns::String text = selectedText(view); text) {
        toolbox::FloatingViewController::make().shareText(text);
    }
}

void selectAllAndCopy(ui::View view, ns::String text, const NoticePlace& place) {
    ui::TextInput(view).selectAll(view);
    pasteboard().setString(text);
    showToast(view, u"QF：已全选且写入粘贴板❗️"_ns, place);
}

void showToast(ui::View view, ns::String message, const NoticePlace& place) {
    constexpr double shown = 1.6; // seconds
    showNotice(view.window(), message, place, shown);
}

bool isSpan(ui::TextInput input, ui::TextRange range) {
    return range && input.offset(range.start(), range.end()) != 0;
}

void readAloud(ui::View view, ns::String text) {
    constexpr double atOnce = 0;
    speak(view.send<"synth", av::SpeechSynthesizer>(), text, atOnce);
}

} // namespace wentra::editing
