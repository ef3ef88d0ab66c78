// The list's screen: a table of the texts, and a row of buttons below it.
#include "library/clipboard/clipboard_table_view_controller.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/toolbar.hpp"
#include "library/clipboard/history.hpp"
#include "library/clipboard/history_file.hpp"
#include "library/clipboard/record_links.hpp"
#include "library/common/bar_items.hpp"
#include "library/common/light_background.hpp"

#include <array>

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

constexpr double footHeight = 60;

class ClipboardTableViewControllerPeer
    : public objc::Peer<ClipboardTableViewControllerPeer, ClipboardTableViewController> {
    using Self = ClipboardTableViewControllerPeer;

public:
    static constexpr auto methods() {
        return objc::join(
            std::array{
                objc::property<"dismissBlock", &Self::dismissBlock_>(),
                objc::method<"viewDidLoad", &Self::viewDidLoad>(),
                objc::method<"closeButtonTapped:", &Self::close>(),
                objc::method<"tableView:numberOfRowsInSection:", &Self::count>(),
                objc::method<"tableView:cellForRowAtIndexPath:", &Self::cell>(),
                objc::method<"tableView:didSelectRowAtIndexPath:", &Self::choose>(),
                objc::method<"tableView:canEditRowAtIndexPath:", &Self::mayEdit>(),
                objc::method<"tableView:commitEditingStyle:forRowAtIndexPath:", &Self::remove>(),
            },
            History::methods(), RecordLinks::methods());
    }

    ~ClipboardTableViewControllerPeer() {
        ns::NotificationCenter::defaultCenter().removeObserver(self());
    }

    History history{self()};
    RecordLinks links{self()};

private:
    void viewDidLoad();
    [[nodiscard]] ui::TableView addTable() const;
    void addToolbar() const;
    [[nodiscard]] ui::BarButtonItem item(ns::String title, SEL action) const {
        return ui::BarButtonItem::withTitle(title, ui::BarButtonStyle::plain, self(), action);
    }
    void close(ui::BarButtonItem) { self().dismiss(true); }

    [[nodiscard]] long count(ui::TableView, long) const {
        return static_cast<long>(history.count());
    }
    [[nodiscard]] ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) const;
    void choose(ui::TableView table, ns::IndexPath path);
    [[nodiscard]] bool mayEdit(ui::TableView, ns::IndexPath) const { return true; }
    void remove(ui::TableView table, ui::TableViewCellEditingStyle style, ns::IndexPath path);

    objc::Copied<ClipboardTableViewController::Dismissal> dismissBlock_;
};

void ClipboardTableViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    setLightBackground(self().view(), ui::Color::white());
    const ui::TableView table = addTable();
    addToolbar();
    history.begin(table);
}

ui::TableView ClipboardTableViewControllerPeer::addTable() const {
    constexpr double estimatedHeight = 230;
    const CGSize room = self().view().bounds().size;
    const auto table = ui::TableView::withFrame({{0, 0}, {room.width, room.height - footHeight}},
                                                ui::TableViewStyle::plain);
    table.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                              ui::ViewAutoresizing::flexibleHeight);
    table.setRowHeight(ui::TableView::automaticDimension);
    table.setEstimatedRowHeight(estimatedHeight);
    table.setDelegate(self());
    table.setDataSource(self());
    self().view().addSubview(table);
    return table;
}

void ClipboardTableViewControllerPeer::addToolbar() const {
    const CGSize room = self().view().bounds().size;
    const auto toolbar = ui::Toolbar::withFrame({{0, room.height - footHeight}, {room.width, 44}});
    toolbar.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                ui::ViewAutoresizing::flexibleTopMargin);
    toolbar.setItems(spread(std::array{
        item(u"链接"_ns, objc::selector<"filterLinkButtonTapped:">()),
        item(u"数字"_ns, objc::selector<"filterNumberButtonTapped:">()),
        item(u"字母"_ns, objc::selector<"filterLetterButtonTapped:">()),
        item(u"日期"_ns, objc::selector<"sortButtonTapped:">()),
        item(u"关闭"_ns, objc::selector<"closeButtonTapped:">()),
    }));
    self().view().addSubview(toolbar);
}

ui::TableViewCell ClipboardTableViewControllerPeer::cell(ui::TableView table,
                                                         ns::IndexPath path) const {
    const auto identifier = u"cell"_ns;
    ui::TableViewCell cell = table.dequeueReusableCell(identifier);
    if (!cell) {
        cell = ui::TableViewCell::withStyle(ui::TableViewCellStyle::subtitle, identifier);
        cell.textLabel().setNumberOfLines(0);
    }
    const ns::Dictionary record = history.at(path.item());
    cell.textLabel().setText(Record::content(record));
    cell.detailTextLabel().setText(Record::time(record));
    links.addButtons(cell.contentView(), Record::content(record));
    return cell;
}

/// The pasteboard's change is recorded in turn: the text moves to the end.
void ClipboardTableViewControllerPeer::choose(ui::TableView, ns::IndexPath path) {
    const objc::Strong<ClipboardTableViewController> keptAlive = self();
    const ns::Dictionary record = history.at(path.item());
    if (!record) {
        return;
    }
    ui::Pasteboard::generalPasteboard().setString(Record::content(record));
    if (const objc::Strong<ClipboardTableViewController::Dismissal> dismissal = dismissBlock_;
        dismissal) {
        dismissal();
    }
}

void ClipboardTableViewControllerPeer::remove(ui::TableView table, ui::TableViewCellEditingStyle,
                                              ns::IndexPath path) {
    if (history.remove(path.item())) {
        const auto paths = ns::MutableArray::make();
        paths.add(path);
        table.deleteRows(paths, ui::TableViewRowAnimation::automatic);
    }
}

} // namespace

History& History::of(objc::Object controller) {
    return ClipboardTableViewControllerPeer::of(controller).history;
}
RecordLinks& RecordLinks::of(objc::Object controller) {
    return ClipboardTableViewControllerPeer::of(controller).links;
}

void registerClipboardTableViewController() { ClipboardTableViewControllerPeer::registerClass(); }

} // namespace wentra::clipboard
