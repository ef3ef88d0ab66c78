// The menu of an entry.
#include "bindings/uikit/action.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/animated.hpp"
#include "library/common/screens.hpp"
#include "library/files/browser/file_reading.hpp"
#include "library/files/browser/menus.hpp"
#include "library/files/conversion/xml_copy.hpp"
#include "library/files/viewers/hex_editor_view_controller.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

/// The row that a menu was opened on.
struct Row {
    UmaCollectionViewController controller;
    ui::TableView table;
    ns::IndexPath path;
};

using Run = void (*)(Operations& operations, const Row& row);

struct RowAction {
    std::u16string_view title;
    std::u16string_view symbol;
    Run run;
};

/// A selection list lasts for one use only, so that choosing is not seen.
constexpr auto choose = [](Operations&, const Row&) {};

constexpr auto share = [](Operations& all, const Row& row) {
    const auto path = all.panes.entry(row.table, row.path);
    if (const ns::Url url = path ? urlOf(*path) : ns::Url(); url) {
        const auto items = ns::MutableArray::make();
        items.add(url);
        presentSheet(ui::ActivityViewController::sharing(items), row.controller);
    }
};

constexpr auto copyPath = [](Operations& all, const Row& row) {
    if (const auto path = all.panes.entry(row.table, row.path); path) {
        ui::Pasteboard::generalPasteboard().setString(textOf(*path));
    }
};

constexpr auto showBytes = [](Operations& all, const Row& row) {
    const auto path = all.panes.entry(row.table, row.path);
    if (path) {
        row.controller.navigationController().push(HexEditorViewController::withFile(textOf(*path)),
                                                   animated);
    }
};

constexpr std::array rowActions{
    RowAction{u"选择", u"checkmark.circle", choose},
    RowAction{u"删除", u"trash",
              [](Operations& all, const Row& row) { all.deleting.ask(row.table, row.path); }},
    RowAction{u"复制", u"doc.on.doc",
              [](Operations& all, const Row& row) { all.transfers.copy(row.table, row.path); }},
    RowAction{u"移动", u"arrow.left.and.right.circle",
              [](Operations& all, const Row& row) { all.transfers.move(row.table, row.path); }},
    RowAction{u"分享", u"square.and.arrow.up", share},
    RowAction{u"重命名", u"pencil.and.outline",
              [](Operations& all, const Row& row) { all.transfers.rename(row.table, row.path); }},
    RowAction{u"复制路径", u"chart.bar.doc.horizontal", copyPath},
    RowAction{
        u"直接发邮件附件", u"envelope",
        [](Operations& all, const Row& row) { all.mailSending.compose(row.table, row.path); }},
    RowAction{u"图片转换为JPG", u"photo",
              [](Operations& all, const Row& row) {
                  all.imageConversion.convert(row.path, row.table, u"jpg"_ns);
              }},
    RowAction{u"图片转换为PNG", u"photo.artframe",
              [](Operations& all, const Row& row) {
                  all.imageConversion.convert(row.path, row.table, u"png"_ns);
              }},
    RowAction{u"转换为XML明文", u"faxmachine",
              [](Operations& all, const Row& row) { copyAsXml(all.panes, row.table, row.path); }},
    RowAction{u"十六进制预览器", u"textformat.abc.dottedunderline", showBytes},
};

} // namespace

ui::Menu Menus::menuFor(ui::TableView table, ns::IndexPath row) {
    const auto children = ns::MutableArray::make();
    for (const RowAction& action : rowActions) {
        const auto handle = [this, run = action.run, whole = objc::Strong(self()),
                             table = objc::Strong(table), row = objc::Strong(row)](ui::Action) {
            run(operations_, {whole, table, row});
        };
        children.add(ui::Action::with(ns::String::from(action.title),
                                      ui::Image::systemNamed(ns::String::from(action.symbol)),
                                      ui::Action::Handler::from(handle)));
    }
    return ui::Menu::with(u"你好，要做什么？"_ns, children);
}

ui::ContextMenuConfiguration Menus::contextMenu(ui::ContextMenuInteraction interaction,
                                                CGPoint /*place*/) {
    constexpr long left = 1;
    const auto cell = interaction.view().as<ui::TableViewCell>();
    const Panes& panes = operations_.panes;
    const ui::TableView table = cell.tag() == left ? panes.left() : panes.right();
    const ns::IndexPath row = table.indexPathFor(cell);
    if (!row) {
        return nullptr; // the cell shows nothing
    }
    // Not retained by its own block: the cells' interactions keep the configuration.
    const auto provide = [this, known = objc::Weak(self()), table = objc::Strong(table),
                          row = objc::Strong(row)](ns::Array) {
        return known ? menuFor(table, row) : ui::Menu();
    };
    return ui::ContextMenuConfiguration::with(
        row, {}, ui::ContextMenuConfiguration::ActionProvider::from(provide));
}

} // namespace wentra::files
