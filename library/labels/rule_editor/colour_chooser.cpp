// The colour chooser. No button opens it; it is there for whoever sends `ysButtonPressed:`.
#include "library/labels/rule_editor/colour_chooser.hpp"

#include "bindings/objc/peer.hpp"
#include "library/common/screens.hpp"
#include "library/labels/rule_editor/editor.hpp"
#include "library/labels/rule_kind.hpp"
#include "library/startup/resources.hpp"

#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;

class OwnAlertController : public objc::Peer<OwnAlertController, CustomAlertController> {
public:
    static std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// Inserts the colour of an entry of the list; nothing for entries that are none.
void addEntry(ui::AlertController sheet, ui::View host, ns::Dictionary entry) {
    const auto color = entry.get(u"color"_ns).as<ns::String>();
    const auto title = entry.get(u"description"_ns).as<ns::String>();
    if (!color || !title) {
        return;
    }
    const auto insert = [kept = objc::Strong(host), color = objc::Strong(color)](ui::AlertAction) {
        insertAtCaret(kept, std::u16string(ruleKindNames(RuleKind::colour).marker) + color.utf16());
    };
    sheet.addAction(ui::AlertAction::with(title, ui::AlertActionStyle::normal,
                                          ui::AlertAction::Handler::from(insert)));
}

void choose(ui::View host, objc::Object) {
    const auto sheet =
        CustomAlertController::with(u"选择颜色"_ns, nullptr, ui::AlertStyle::actionSheet);
    const ns::String list = ns::String::fromUtf8(startup::colourListPath());
    for (const objc::Object entry : ns::Array::withContentsOfFile(list)) {
        addEntry(sheet, host, entry.as<ns::Dictionary>());
    }
    sheet.addAction(ui::AlertAction::with(u"取消"_ns, ui::AlertActionStyle::cancel, {}));
    topViewController().present(sheet, true);
}

} // namespace

void registerCustomAlertController() { OwnAlertController::registerClass(); }

std::span<const objc::Change> colourChoosing() {
    static constexpr std::array changes{
        objc::addition<"UIView", "ysButtonPressed:", &choose>(),
    };
    return changes;
}

} // namespace wentra::labels
