// Editing a translation, small in the alert or large in the full-screen editor.
#include "library/toolbox/translation/edit_alert.hpp"

#include "library/clipboard/text_view_controller.hpp"
#include "library/common/alert.hpp"
#include "library/labels/stored_rules.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using Text = objc::Copied<ns::String>;

void presentEmptyInputAlert() {
    Alert(u"❌错误提示"_ns, u"输入为空，请输入新的翻译结果，再点击确定修改。"_ns)
        .action(u"好的"_ns)
        .present();
}

void confirm(ns::String original, ns::String edited) {
    if (edited.length() == 0) {
        presentEmptyInputAlert();
    } else {
        labels::storeTextRule(original.utf16(), edited.utf16());
    }
}

void enlarge(ns::String original, ui::TextField field) {
    const auto editor = clipboard::TextViewController::make();
    editor.setDisplayText(field.text());
    editor.setDoneEditingCallback(clipboard::TextViewController::Done::from(
        [original = Text(original), field = objc::Strong(field)](ns::String edited) {
            labels::storeTextRule(original.utf16(), edited.utf16());
            field.setText(edited);
        }));
    editor.showWithText(field.text());
}

} // namespace

void presentEditAlert(ns::String original, ns::String translated) {
    const auto message = ns::String::from(u"\n原翻译为：\n\n" + translated.utf16());
    Alert(u"修改翻译结果？"_ns, message)
        .field(u"输入你的翻译结果"_ns, translated)
        .action(u"窗口放大"_ns,
                [text = Text(original)](ui::TextField field) { enlarge(text, field); })
        .action(u"取消修改"_ns, ui::AlertActionStyle::cancel)
        .action(u"确定修改"_ns,
                [text = Text(original)](ui::TextField field) { confirm(text, field.text()); })
        .present();
}

} // namespace wentra::toolbox
