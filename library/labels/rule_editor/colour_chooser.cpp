// The colour chooser. No button opens it; it is there for whoever sends `ysButtonPressed:`.
#include "library/labels/rule_editor/colour_chooser.hpp"

#include "bindings/objc/peer.hpp"
#include "library/common/alert.hpp"
#include "library/labels/rule_editor/editor.hpp"
#include "library/paths/resources.hpp"

#include <array>

namespace wentra::labels {
namespace {

using namespace ns::literals;

class CustomAlertControllerPeer
    : public objc::Peer<CustomAlertControllerPeer, CustomAlertController> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// Inserts the colour of an entry of the list; nothing for entries that are none.
void addEntry(const Alert& sheet, ui::View host, ns::Dictionary entry) {
    const auto color = entry.get(u"color"_ns).as<ns::String>();
    const auto title = entry.get(u"description"_ns).as<ns::String>();
    if (color && title) {
        sheet.action(title, [kept = objc::Strong(host), color = objc::Strong(color)] {
            insertRule(kept, RuleKind::colour, color);
        });
    }
}

void choose(ui::View host, objc::Object) {
    const Alert sheet(
        CustomAlertController::with(u"选择颜色"_ns, nullptr, ui::AlertStyle::actionSheet));
    const ns::String list = ns::String::fromUtf8(paths::colourListPath());
    for (const objc::Object entry : ns::Array::withContentsOfFile(list)) {
        addEntry(sheet, host, entry.as<ns::Dictionary>());
    }
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel).from(host, host.bounds()).present();
}

} // namespace

void registerCustomAlertController() { CustomAlertControllerPeer::registerClass(); }

std::span<const objc::Change> colourChoosing() {
    static constexpr std::array changes{
        objc::addition<"ysButtonPressed:", &choose>(),
    };
    return changes;
}

} // namespace wentra::labels
