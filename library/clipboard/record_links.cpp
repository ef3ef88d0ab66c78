// A button for paths and one for web links, at the right of the row's foot.
#include "library/clipboard/record_links.hpp"

#include "bindings/uikit/layout_item.hpp"
#include "library/common/alert.hpp"
#include "library/common/buttons.hpp"
#include "library/common/links.hpp"
#include "library/common/path_links.hpp"

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

/// `right`: points to the row's right edge. The button carries the text to the action.
void addButton(ui::View row, ns::String title, double right, ns::String content,
               objc::Object target, SEL action) {
    const auto button = makeButton({.title = title,
                                    .textSize = 15,
                                    .background = ui::Color::lightGray().withAlphaComponent(0.3),
                                    .cornerRadius = 6},
                                   target, action);
    button.setTitleColor(ui::Color::blue(), ui::ControlState::normal);
    button.setRestorationIdentifier(content);
    row.addSubview(button);
    const ui::LayoutItem place = constrained(button);
    const ui::LayoutItem around(row);
    place.trailing().equalTo(around.trailing(), -right).activate();
    place.bottom().equalTo(around.bottom(), -8).activate();
    place.height().equalTo(23).activate();
    place.width().equalTo(45).activate();
}

void removeButtons(ui::View row) {
    for (const ui::View view : row.subviews()) {
        if (view.as<ui::Button>()) {
            view.removeFromSuperview();
        }
    }
}

} // namespace

void RecordLinks::addButtons(ui::View row, ns::String content) const {
    removeButtons(row);
    if (pathsIn(content).count() > 0) {
        addButton(row, u"跳转"_ns, 58, content, self(), objc::selector<"openPath:">());
    }
    if (webLinksIn(content).count() > 0) {
        addButton(row, u"加载"_ns, 8, content, self(), objc::selector<"openUrl:">());
    }
}

ns::Array RecordLinks::pathsIn(ns::String text) const {
    const auto links = ns::MutableArray::make();
    for (const std::u16string& link : pathLinksIn(text.utf16())) {
        links.add(ns::String::from(link));
    }
    return links;
}

ns::Array RecordLinks::webLinksIn(ns::String text) const { return linksIn(text); }

void RecordLinks::openPath(ui::Button button) const {
    open(pathsIn(button.restorationIdentifier()), u"选择路径"_ns);
}

void RecordLinks::openUrl(ui::Button button) const {
    open(webLinksIn(button.restorationIdentifier()), u"选择链接"_ns);
}

void RecordLinks::open(ns::Array candidates, ns::String question) const {
    if (candidates.count() == 1) {
        openLink(candidates.first().as<ns::String>());
        return;
    }
    const Alert sheet(ui::AlertController::with(question, nullptr, ui::AlertStyle::actionSheet));
    for (const objc::Object candidate : candidates) {
        const auto address = candidate.as<ns::String>();
        sheet.action(address, [kept = objc::Strong(address)] { openLink(kept); });
    }
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel).presentFrom(self());
}

} // namespace wentra::clipboard
