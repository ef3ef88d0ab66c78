// UITableView: rows of a data source, of which only the visible ones have cells.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/table_view_cell.hpp"
#include "bindings/uikit/touch.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/lists/cell_store.hpp"
#include "desktop/uikit/lists/flow_rules.hpp"
#include "desktop/uikit/lists/item_selection.hpp"
#include "desktop/uikit/lists/row_heights.hpp"
#include "desktop/uikit/lists/row_swipe.hpp"
#include "desktop/uikit/lists/table_view_cell.hpp"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace desktop {

class SwipeActionsConfiguration;

class TableView : public PlatformClass<TableView, ui::TableView> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The row whose cell the view is, or lies in.
    [[nodiscard]] std::optional<ItemIndex> rowOf(ui::View view) const {
        return cells_.itemOf(view, self());
    }
    /// What a swipe to the left over the row offers; none where the row may not be edited.
    [[nodiscard]] RowActions actionsOf(ItemIndex row);
    /// Shows what the row offers, as a swipe does, unless it offers nothing.
    void openSwipe(ItemIndex row);
    /// Does that of what the open row offers; nothing when no row is open.
    void choose(std::size_t action);

private:
    enum class Margin { header, footer };
    /// From the table's top.
    struct SectionHeights {
        double top;
        double header;
        double end;
        double footer;
    };

    ui::View initWithStyle(CGRect frame, long style);
    ui::View initWithFrame(CGRect frame);
    [[nodiscard]] objc::Object dataSource() const { return dataSource_; }
    void setDataSource(objc::Object source);
    [[nodiscard]] objc::Object delegate() const { return self().send<"delegate", objc::Object>(); }
    [[nodiscard]] ui::View tableHeaderView() const { return header_; }
    void setTableHeaderView(ui::View view);
    [[nodiscard]] ui::View tableFooterView() const { return footer_; }
    void setTableFooterView(ui::View view);

    // Rows.
    [[nodiscard]] long numberOfSections();
    [[nodiscard]] long numberOfRows(long section);
    void reloadData();
    void rowsChanged();
    void reloadRows(ns::ArrayOf<ns::IndexPath> paths, long animation);
    void insertRows(ns::ArrayOf<ns::IndexPath> paths, long animation);
    void deleteRows(ns::ArrayOf<ns::IndexPath> paths, long animation);
    void reloadSections(objc::Object, long) { rowsChanged(); }
    /// Asks the data source anew, which must have that many more rows in the section of each.
    void rowsChangedBy(long change, const std::set<ItemIndex>& rows);
    void beginUpdates() { ++updates_; }
    void endUpdates() {
        --updates_;
        rowsChanged();
    }
    void prepare();
    [[nodiscard]] FlowSection section(long index);
    [[nodiscard]] double heightBefore() const { return header_.bounds().size.height; }
    [[nodiscard]] CGRect frameOf(ItemIndex index) const;

    // Cells.
    void registerCellClass(Class cls, ns::String identifier);
    [[nodiscard]] ui::TableViewCell dequeue(ns::String identifier);
    [[nodiscard]] ui::TableViewCell dequeueFor(ns::String identifier, ns::IndexPath path);
    void layoutSubviews();
    void showVisibleCells();
    [[nodiscard]] ui::TableViewCell cellAt(ns::IndexPath path) const;
    [[nodiscard]] ns::IndexPath pathForCell(ui::TableViewCell cell) const;
    [[nodiscard]] ns::IndexPath pathAt(CGPoint point);
    [[nodiscard]] CGRect rectForRow(ns::IndexPath path);
    [[nodiscard]] ns::Array visibleCells() const { return cells_.cells(); }
    [[nodiscard]] ns::Array visiblePaths() const { return cells_.paths(); }
    void scrollTo(ns::IndexPath path, long position, bool animated);
    [[nodiscard]] bool showWantedCells();
    [[nodiscard]] bool showNewCell(ItemIndex index);
    void placeCell(ItemIndex index);
    void measureAnew(std::optional<ItemIndex> anchor, double formerTop);
    [[nodiscard]] double declaredHeight(ItemIndex index) const;
    [[nodiscard]] double heightOf(ItemIndex index) const;
    [[nodiscard]] bool fit(ItemIndex index, ui::TableViewCell cell);
    void putAway(ItemIndex index);
    void putAllAway();
    void lookChanged() { rowsChanged(); }

    // What stands above and below the rows of a section, in table_view_margins.cpp.
    [[nodiscard]] double headerHeight(long section) const;
    [[nodiscard]] double footerHeight(long section) const;
    [[nodiscard]] CGRect marginRoom() const;
    [[nodiscard]] ns::String footerTitle(long section) const;
    void showMargins();
    void showMargin(std::pair<long, Margin> place, CGRect frame);
    [[nodiscard]] ui::View makeHeader(long section) const;
    [[nodiscard]] ui::View makeFooter(long section) const;

    // Selection and touches, in table_view_selection.cpp.
    [[nodiscard]] ns::IndexPath selectedPath() const;
    [[nodiscard]] ns::Array selectedPaths() const;
    void selectRow(ns::IndexPath path, bool animated, long position);
    void deselectRow(ns::IndexPath path, bool animated);
    void mark(ItemIndex index, bool selected);
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    std::set<ItemIndex> release();
    void selectByTouch(ItemIndex index);
    void deselectByTouch(ItemIndex index);

    // What is done with rows, in table_view_swiping.cpp.
    void addSwipe();
    [[nodiscard]] bool mayEdit(ItemIndex index) const;
    [[nodiscard]] bool deletes(ItemIndex index) const;
    [[nodiscard]] RowActions offered(const SwipeActionsConfiguration& configuration);
    [[nodiscard]] RowAction deletion(ItemIndex index);
    [[nodiscard]] bool shouldBegin(ui::GestureRecognizer recognizer);
    [[nodiscard]] bool beginSwipe(ItemIndex row);
    void handleSwipe(ui::PanGestureRecognizer pan);
    void placeSwiped();
    void slideSwiped(double offset);
    void closeSwipe();
    void chooseButton(ui::Button button);

    // Editing, in table_view_editing.cpp.
    void setEditing(bool editing);
    void setEditingAnimated(bool editing, bool animated);
    void editingChanged();
    void showEditing(ui::TableViewCell cell) const;
    [[nodiscard]] bool isEditing() const { return editing_; }
    [[nodiscard]] bool picksSeveral() const;
    [[nodiscard]] bool takesTaps() const;

    template <objc::Literal Name>
    [[nodiscard]] bool answers(objc::Object receiver) const {
        return receiver && receiver.respondsToSelector(objc::selector<Name>());
    }
    template <objc::Literal Name, class... Arguments>
    void tell(Arguments... arguments) const {
        if (const objc::Object told = delegate(); answers<Name>(told)) {
            told.send<Name>(self(), arguments...);
        }
    }

    long style_ = 0;
    objc::Weak<objc::Object> dataSource_;
    double rowHeight_ = 44;
    double estimatedRowHeight_ = -1;
    double sectionHeaderHeight_ = 28;
    long separatorStyle_ = 1;
    UIEdgeInsets separatorInset_{0, 16, 0, 0};
    objc::Strong<ui::Color> separatorColor_;
    objc::Strong<ui::View> header_;
    objc::Strong<ui::View> footer_;
    std::optional<std::vector<long>> counts_; // of the sections' rows, until the next change
    long updates_ = 0;                        // that have begun and not ended
    std::vector<SectionHeights> sections_;
    FlowPlacement placement_; // a row fills a line
    bool isPrepared_ = false;
    double latestWidth_ = 0;
    RowHeights heights_; // of rows of automatic height that have been seen
    CellStore<ui::TableViewCell> cells_;
    std::map<std::pair<long, Margin>, objc::Strong<ui::View>> margins_;
    ItemSelection selection_;
    ItemSelection pressed_; // one at most
    objc::Strong<ui::PanGestureRecognizer> swipePan_;
    std::unique_ptr<RowSwipe> swipe_; // the open row
    bool allowsSelection_ = true;
    bool allowsMultipleSelection_ = false;
    bool editing_ = false;
    bool allowsMultipleDuringEditing_ = false;
    bool allowsSelectionDuringEditing_ = false;
};

} // namespace desktop
