// The sheet that a long press in a pane brings up.
#include "library/common/alert.hpp"
#include "library/files/browser/menus.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;
using ui::AlertActionStyle;

struct PaneAction {
    std::u16string_view title;
    AlertActionStyle style;
    void (*run)(const Operations& operations, ui::TableView table);
};

constexpr auto makeFileIn = [](const Operations& all, ui::TableView table) {
    constexpr bool isFile = true;
    all.creating.ask(isFile, table);
};
constexpr auto makeFolderIn = [](const Operations& all, ui::TableView table) {
    constexpr bool isFile = false;
    all.creating.ask(isFile, table);
};
constexpr auto goUp = [](const Operations& all, ui::TableView table) {
    all.panes.goUp(table);
    all.panes.reloadPane(table);
};

constexpr std::array paneActions{
    PaneAction{u"新建文件", AlertActionStyle::default_, makeFileIn},
    PaneAction{u"新建文件夹", AlertActionStyle::default_, makeFolderIn},
    PaneAction{u"粘贴内容", AlertActionStyle::default_,
               [](const Operations& all, ui::TableView table) { all.pasting.pasteAll(table); }},
    PaneAction{u"文件查重", AlertActionStyle::default_,
               [](const Operations& all, ui::TableView table) { all.duplicates.scan(table); }},
    PaneAction{u"全选并复制", AlertActionStyle::default_,
               [](const Operations& all, ui::TableView table) { all.pasting.addAll(table); }},
    PaneAction{u"全选并删除", AlertActionStyle::destructive,
               [](const Operations& all, ui::TableView table) { all.deleting.askAboutAll(table); }},
    PaneAction{u"返回上一页", AlertActionStyle::default_, goUp},
};

} // namespace

void Menus::showPaneMenu(ui::GestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const ui::View page = self().view();
    const CGPoint place = press.locationIn(page);
    const bool isLeft = place.x < page.bounds().size.width / 2;
    const ui::TableView table = isLeft ? operations_.panes.left() : operations_.panes.right();
    const Alert sheet(ui::AlertController::with(nullptr, nullptr, ui::AlertStyle::actionSheet));
    for (const PaneAction& action : paneActions) {
        sheet.action(ns::String::from(action.title), action.style,
                     [this, run = action.run, table = objc::Strong(table),
                      whole = objc::Strong(self())] { run(operations_, table); });
    }
    sheet.action(u"取消"_ns, AlertActionStyle::cancel)
        .from(page, {place, {1, 1}})
        .presentFrom(self());
}

} // namespace wentra::files
