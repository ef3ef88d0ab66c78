// Editing a translation, small in the alert or large in the full-screen editor.
#include "library/toolbox/translation/edit_alert.hpp"

#include "bindings/uikit/alert_controller.hpp"
#include "library/clipboard/text_view_controller.hpp"
#include "library/common/screens.hpp"
#include "library/labels/stored_rules.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using Text = objc::Copied<ns::String>;
using Field = objc::Strong<ui::TextField>;
using Handler = ui::AlertAction::Handler;

void presentEmptyInputAlert() {
    const auto alert = ui::AlertController::with(
        u"❌错误提示"_ns, u"输入为空，请输入新的翻译结果，再点击确定修改。"_ns,
        ui::AlertStyle::alert);
    alert.addAction(ui::AlertAction::with(u"好的"_ns, ui::AlertActionStyle::normal, {}));
    topViewController().present(alert, true);
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
        [original = Text(original), field = Field(field)](ns::String edited) {
            labels::storeTextRule(original.utf16(), edited.utf16());
            field.setText(edited);
        }));
    editor.showWithText(field.text());
}

} // namespace

void presentEditAlert(ns::String original, ns::String translated) {
    const auto message = ns::String::from(u"\n原翻译为：\n\n" + translated.utf16());
    const auto alert =
        ui::AlertController::with(u"修改翻译结果？"_ns, message, ui::AlertStyle::alert);
    alert.addTextField(ui::AlertController::Configuration::from(
        [translated = Text(translated)](ui::TextField field) {
            field.setPlaceholder(u"输入你的翻译结果"_ns);
            field.setText(translated);
        }));
    const Field field = alert.textFields().first().assume<ui::TextField>();
    const Text text(original);
    alert.addAction(ui::AlertAction::with(
        u"窗口放大"_ns, ui::AlertActionStyle::normal,
        Handler::from([text, field](ui::AlertAction) { enlarge(text, field); })));
    alert.addAction(ui::AlertAction::with(u"取消修改"_ns, ui::AlertActionStyle::cancel, {}));
    alert.addAction(ui::AlertAction::with(
        u"确定修改"_ns, ui::AlertActionStyle::normal,
        Handler::from([text, field](ui::AlertAction) { confirm(text, field.text()); })));
    topViewController().present(alert, true);
}

} // namespace wentra::toolbox
