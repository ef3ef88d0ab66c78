// The list's screen: its rows, and opening what they show.
#include "library/crashlogs/report_list_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/navigation_item.hpp"
#include "library/common/animated.hpp"
#include "library/crashlogs/report_cell.hpp"
#include "library/crashlogs/report_editing.hpp"
#include "library/crashlogs/report_folder.hpp"
#include "library/crashlogs/report_lists.hpp"
#include "library/crashlogs/report_opening.hpp"

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

ns::String reuseIdentifier() { return u"cell"_ns; }

class ReportListControllerPeer : public objc::Peer<ReportListControllerPeer, ReportListController> {
public:
    static constexpr auto methods() {
        using Peer = ReportListControllerPeer;
        return objc::join(
            std::array{
                objc::property<"searchController", &Peer::search_>(),
                objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
                objc::method<"backButtonClicked:", &Peer::close>(),
                objc::method<"setEditing:animated:", &Peer::setEditing>(),
                objc::method<"tableView:numberOfRowsInSection:", &Peer::count>(),
                objc::method<"tableView:heightForRowAtIndexPath:", &Peer::height>(),
                objc::method<"tableView:cellForRowAtIndexPath:", &Peer::cell>(),
                objc::method<"tableView:didSelectRowAtIndexPath:", &Peer::choose>(),
            },
            ReportLists::methods(), ReportEditing::methods(), ReportOpening::methods());
    }

    ReportLists lists{self()};
    ReportEditing editing{self(), lists};
    ReportOpening opening{self(), lists};

private:
    void viewDidLoad();
    void addBarItems();
    void addSearch();
    void close(objc::Object) { self().dismiss(animated); }
    void setEditing(bool edits, bool isAnimated);
    [[nodiscard]] bool isEmpty() const { return lists.count() == 0; }
    [[nodiscard]] long count(ui::TableView, long) const {
        return isEmpty() ? 1 : static_cast<long>(lists.count());
    }
    [[nodiscard]] double height(ui::TableView, ns::IndexPath) const {
        return isEmpty() ? emptyRowHeight : reportRowHeight;
    }
    [[nodiscard]] ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) const;
    void choose(ui::TableView table, ns::IndexPath path);

    objc::Strong<ui::SearchController> search_;
};

void ReportListControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    addBarItems();
    editing.addToolbar();
    addSearch();
    self().setTitle(shownByPreference() == Shown::documents ? u"/var/mobile/Documents"_ns
                                                            : u"错误日志列表"_ns);
    self().tableView().registerClass(ui::TableViewCell::classObject(), reuseIdentifier());
    lists.begin();
}

void ReportListControllerPeer::addBarItems() {
    self().navigationItem().setLeftBarButtonItem(ui::BarButtonItem::withTitle(
        u"关闭"_ns, ui::BarButtonStyle::plain, self(), objc::selector<"backButtonClicked:">()));
    self().navigationItem().setRightBarButtonItem(self().editButtonItem());
}

void ReportListControllerPeer::addSearch() {
    search_ = ui::SearchController::withResults(nullptr);
    search_.setSearchResultsUpdater(self());
    search_.setObscuresBackgroundDuringPresentation(false);
    search_.searchBar().setPlaceholder(u"搜索文件名"_ns);
    self().tableView().setTableHeaderView(search_.searchBar());
    // What a search has found is pushed above its bar, not below.
    self().setDefinesPresentationContext(true);
}

void ReportListControllerPeer::setEditing(bool edits, bool isAnimated) {
    self().tableView().setAllowsMultipleSelectionDuringEditing(edits);
    super<"setEditing:animated:">(edits, isAnimated);
}

ui::TableViewCell ReportListControllerPeer::cell(ui::TableView table, ns::IndexPath path) const {
    const auto cell = table.dequeueReusableCell(reuseIdentifier(), path);
    const auto row = static_cast<unsigned long>(path.item());
    if (row < lists.count()) {
        fillCell(cell, lists.at(row));
    } else {
        fillEmptyCell(cell);
    }
    return cell;
}

void ReportListControllerPeer::choose(ui::TableView table, ns::IndexPath path) {
    const auto row = static_cast<unsigned long>(path.item());
    if (row >= lists.count()) {
        table.deselectRow(path, !animated); // the hint
    } else if (self().isEditing()) {
        editing.pick(path);
    } else {
        table.deselectRow(path, animated);
        opening.open(row);
    }
}

} // namespace

ReportLists& ReportLists::of(objc::Object controller) {
    return ReportListControllerPeer::of(controller).lists;
}
ReportEditing& ReportEditing::of(objc::Object controller) {
    return ReportListControllerPeer::of(controller).editing;
}
ReportOpening& ReportOpening::of(objc::Object controller) {
    return ReportListControllerPeer::of(controller).opening;
}

ReportListController ReportListController::ofListedFiles() {
    const ns::Array entries = listedEntries();
    const auto controller = make();
    controller.send<"setIpsFiles:">(entries);
    controller.send<"setIpsFilesMutable:">(ns::MutableArray::withArray(entries));
    return controller;
}

void registerReportListController() { ReportListControllerPeer::registerClass(); }

} // namespace wentra::crashlogs
