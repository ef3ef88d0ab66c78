// Tables: rows for what is seen, headers, selection by code and by touch.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/table_view_cell.hpp"
#include "bindings/uikit/table_view_controller.hpp"

#include "desktop/uikit/lists/item_selection.hpp"
#include "desktop/uikit/lists/table_view.hpp"

namespace {

using namespace ns::literals;
using desktop::ItemIndex;

TEST(ItemSelection, MovesWithItsItems) {
    desktop::ItemSelection selection;
    for (const ItemIndex index : {ItemIndex{0, 2}, {0, 7}, {1, 2}}) {
        selection.add(index);
    }
    selection.itemsWereInserted({{0, 0}, {0, 5}});
    EXPECT_EQ(selection.items(), (std::set<ItemIndex>{{0, 3}, {0, 9}, {1, 2}}));
    selection.itemsWereDeleted({{0, 3}, {0, 4}, {1, 0}});
    EXPECT_EQ(selection.items(), (std::set<ItemIndex>{{0, 7}, {1, 1}}));
    selection.itemsWereInserted({{0, 7}});
    EXPECT_EQ(selection.items(), (std::set<ItemIndex>{{0, 8}, {1, 1}})) << "at its own place";
}

struct RowsKind : objc::Kind<RowsKind, "WTTestRows"> {
    using Kind::Kind;
};

/// A data source and delegate that writes down what it is told.
class Rows : public objc::Peer<Rows, RowsKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"numberOfSectionsInTableView:", &Rows::sections>(),
            objc::method<"tableView:numberOfRowsInSection:", &Rows::count>(),
            objc::method<"tableView:titleForHeaderInSection:", &Rows::title>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Rows::cell>(),
            objc::method<"tableView:willSelectRowAtIndexPath:", &Rows::willSelect>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Rows::note<'s'>>(),
            objc::method<"tableView:didDeselectRowAtIndexPath:", &Rows::note<'d'>>(),
        };
    }
    long rows = 5'000;
    long made = 0;
    std::string told;
    std::function<void()> then; ///< done before a cell is handed out

private:
    long sections(ui::TableView) { return 2; }
    long count(ui::TableView, long section) { return section == 0 ? 3 : rows; }
    ns::String title(ui::TableView, long section) {
        return section == 1 ? ns::String(u"B"_ns) : ns::String();
    }
    ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) {
        if (then) {
            then();
        }
        auto cell = table.send<"dequeueReusableCellWithIdentifier:", ui::TableViewCell>(u"Row"_ns);
        if (!cell) {
            ++made;
            cell = ui::TableViewCell::make<"initWithStyle:reuseIdentifier:">(
                ui::TableViewCellStyle::value1, u"Row"_ns);
        }
        cell.send<"textLabel", ui::Label>().setText(
            ns::String::fromUtf8("Row " + std::to_string(path.item())));
        return cell;
    }
    ns::IndexPath willSelect(ui::TableView, ns::IndexPath path) {
        return path.item() == 2 ? ns::IndexPath() : path;
    }
    template <char Letter>
    void note(ui::TableView, ns::IndexPath path) {
        told += Letter + std::to_string(path.section()) + "." + std::to_string(path.item()) + ' ';
    }
};

class TableViewTest : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        Rows::registerClass();
    }
    TableViewTest() {
        table_.send<"setDataSource:">(rows_.raw());
        table_.send<"setDelegate:">(rows_.raw());
        window_.addSubview(table_);
        window_.layoutIfNeeded();
    }
    ~TableViewTest() override {
        table_.send<"setDataSource:">(objc::Object());
        table_.send<"setDelegate:">(objc::Object());
    }
    Rows& rows() { return Rows::of(rows_); }
    static ns::IndexPath path(long row, long section = 1) {
        return ns::IndexPath::forItem(row, section);
    }
    [[nodiscard]] ui::TableViewCell cellAt(ns::IndexPath where) const {
        return table_.send<"cellForRowAtIndexPath:", ui::TableViewCell>(where);
    }
    [[nodiscard]] CGRect rect(ns::IndexPath where) const {
        return table_.send<"rectForRowAtIndexPath:", CGRect>(where);
    }
    void tapRow(ns::IndexPath where) {
        const CGRect frame = rect(where);
        tap(table_.convertPoint({50, frame.origin.y + 20}, nullptr));
    }
    [[nodiscard]] ns::IndexPath selected() const {
        return table_.send<"indexPathForSelectedRow", ns::IndexPath>();
    }
    std::string takeTold() { return std::exchange(rows().told, {}); }

    objc::Strong<RowsKind> rows_ = RowsKind::make();
    ui::TableView table_ =
        ui::TableView::make<"initWithFrame:style:">(CGRect{{0, 100}, {300, 440}}, 0L);
};

TEST_F(TableViewTest, RowsLieBelowEachOtherAndOnlyTheSeenOnesExist) {
    EXPECT_EQ(rect(path(2, 0)), (CGRect{{0, 88}, {300, 44}}));
    EXPECT_EQ(rect(path(0)), (CGRect{{0, 160}, {300, 44}})) << "below the section's title";
    EXPECT_EQ(rect(path(9'999)), CGRect());
    EXPECT_EQ(table_.contentSize(), (CGSize{300, 44.0 * 5'003 + 28}));
    EXPECT_FALSE(cellAt(path(4'000)));
    table_.setContentOffset({0, 160 + 44.0 * 4'000});
    table_.layoutIfNeeded();
    const auto label = cellAt(path(4'000)).send<"textLabel", ui::Label>();
    EXPECT_EQ(label.text().utf8(), "Row 4000");
    EXPECT_LT(rows().made, 25);
    EXPECT_EQ((table_.send<"indexPathForRowAtPoint:", ns::IndexPath>(CGPoint{5, 161}).item()), 0);
    EXPECT_FALSE((table_.send<"indexPathForRowAtPoint:", ns::IndexPath>(CGPoint{5, 140})));
}

TEST_F(TableViewTest, ATouchSelectsWhatTheDelegateAllows) {
    tapRow(path(0));
    tapRow(path(1));
    tapRow(path(2));
    EXPECT_EQ(takeTold(), "s1.0 d1.0 s1.1 ");
    EXPECT_EQ(selected().item(), 1);
    tapRow(path(1));
    EXPECT_EQ(takeTold(), "s1.1 ") << "it stays selected";
    table_.send<"deselectRowAtIndexPath:animated:">(path(1), objc::Boolean(true));
    EXPECT_FALSE(selected());
    EXPECT_EQ(takeTold(), "");
    table_.send<"setAllowsMultipleSelection:">(objc::Boolean(true));
    tapRow(path(0));
    tapRow(path(1));
    tapRow(path(0));
    EXPECT_EQ(takeTold(), "s1.0 s1.1 d1.0 ");
}

TEST_F(TableViewTest, ARowThatGoesUnderTheFingerIsNotChosen) {
    for (const long deleted : {1L, 0L}) { // the row itself, and one above
        down(table_.convertPoint({50, rect(path(1)).origin.y + 20}, nullptr));
        rows().rows -= 1;
        const auto paths = ns::MutableArray::make();
        paths.add(path(deleted));
        table_.send<"deleteRowsAtIndexPaths:withRowAnimation:">(paths, 0L);
        window_.layoutIfNeeded();
        up();
        EXPECT_EQ(takeTold(), "") << deleted;
        EXPECT_FALSE(selected()) << deleted;
    }
}

TEST_F(TableViewTest, RowsThatTheSourceHasNotLostAreNotDeleted) {
    const auto paths = ns::MutableArray::make();
    paths.add(path(0));
    const auto deleteRow = [&] {
        table_.send<"deleteRowsAtIndexPaths:withRowAnimation:">(paths, 0L);
        table_.layoutIfNeeded();
    };
    table_.layoutIfNeeded();
    EXPECT_ANY_THROW(deleteRow());
    rows().rows -= 1;
    EXPECT_NO_THROW(deleteRow());
}

TEST_F(TableViewTest, TheSourceMayChangeItsMindWhileItIsAsked) {
    rows().then = [this] {
        rows().rows = 1;
        table_.send<"reloadData">();
        EXPECT_EQ(rect(path(0)).size.height, 44) << "measured anew";
    };
    table_.send<"reloadData">();
    window_.layoutIfNeeded();
    rows().then = nullptr;
    window_.layoutIfNeeded();
    EXPECT_EQ((table_.send<"visibleCells", ns::Array>().count()), 4U);
}

TEST_F(TableViewTest, SelectingByCodeScrollsAndTellsNobody) {
    table_.send<"selectRowAtIndexPath:animated:scrollPosition:">(path(3'000), objc::Boolean(false),
                                                                 2L);
    table_.layoutIfNeeded();
    EXPECT_TRUE((cellAt(path(3'000)).send<"isSelected", bool>()));
    EXPECT_NEAR(table_.contentOffset().y, rect(path(3'000)).origin.y + 22 - 220, 1e-6);
    EXPECT_EQ(takeTold(), "");
    rows().rows -= 1;
    const auto first = ns::MutableArray::make();
    first.add(path(0));
    table_.send<"deleteRowsAtIndexPaths:withRowAnimation:">(first, 0L);
    EXPECT_EQ(selected().item(), 2'999);
    table_.send<"reloadData">();
    EXPECT_FALSE(selected());
}

TEST_F(TableViewTest, ARowIsScrolledClearOfTheInsets) {
    table_.setContentInset({20, 0, 30, 0});
    constexpr double rowHeight = 44;
    constexpr double room = 440;
    const double top = rect(path(100)).origin.y;
    for (const auto& [position, offset] :
         {std::pair{1L, top - 20}, {3L, top + rowHeight + 30 - room}}) {
        table_.send<"scrollToRowAtIndexPath:atScrollPosition:animated:">(path(100), position,
                                                                         objc::Boolean(false));
        EXPECT_EQ(table_.contentOffset().y, offset) << position;
    }
}

TEST_F(TableViewTest, HeaderAndFooterViewsMoveTheRows) {
    const auto header = ui::View::withFrame({{0, 0}, {10, 60}});
    table_.send<"setTableHeaderView:">(header);
    table_.layoutIfNeeded();
    EXPECT_EQ(rect(path(0, 0)).origin.y, 60);
    EXPECT_EQ(header.frame(), (CGRect{{0, 0}, {300, 60}}));
    EXPECT_EQ(cellAt(path(0, 0)).frame().origin.y, 60);
}

TEST_F(TableViewTest, OfABareControllerIsEmpty) {
    const auto table = ui::TableViewController::withStyle(ui::TableViewStyle::plain).tableView();
    table.setFrame({{0, 0}, {320, 480}});
    table.layoutIfNeeded();
    EXPECT_EQ((table.send<"numberOfSections", long>()), 1);
    EXPECT_EQ((table.send<"numberOfRowsInSection:", long>(0L)), 0);
}

} // namespace
