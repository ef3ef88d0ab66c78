// Tables: rows for what is seen, headers, selection by code and by touch.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "desktop/uikit/collections/item_selection.hpp"
#include "desktop/uikit/table_view.hpp"

namespace {

using namespace ns::literals;
using desktop::ItemIndex;
using desktop::TableCellKind;
using desktop::TableKind;

TEST(ItemSelection, MovesWithItsItems) {
    desktop::ItemSelection selection;
    for (const ItemIndex index : {ItemIndex{0, 2}, {0, 7}, {1, 2}}) {
        selection.add(index);
    }
    selection.itemsWereInserted({{0, 0}, {0, 5}});
    EXPECT_EQ(selection.items(), (std::set<ItemIndex>{{0, 3}, {0, 9}, {1, 2}}));
    selection.itemsWereDeleted({{0, 3}, {0, 4}, {1, 0}});
    EXPECT_EQ(selection.items(), (std::set<ItemIndex>{{0, 7}, {1, 1}}));
}

struct RowsKind : objc::Kind<RowsKind, "WTTestRows"> {
    using Kind::Kind;
};

/// A data source and delegate that writes down what it is told.
class Rows : public objc::Peer<Rows, RowsKind, objc::Boundary::propagates> {
public:
    static auto methods() {
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

private:
    long sections(TableKind) { return 2; }
    long count(TableKind, long section) { return section == 0 ? 3 : rows; }
    ns::String title(TableKind, long section) {
        return section == 1 ? ns::String(u"B"_ns) : ns::String();
    }
    TableCellKind cell(TableKind table, ns::IndexPath path) {
        auto cell = table.send<"dequeueReusableCellWithIdentifier:", TableCellKind>(u"Row"_ns);
        if (!cell) {
            ++made;
            cell = TableCellKind::make<"initWithStyle:reuseIdentifier:">(
                desktop::TableCellStyle::value1, u"Row"_ns);
        }
        cell.send<"textLabel", ui::Label>().setText(
            ns::String::fromUtf8("Row " + std::to_string(path.item())));
        return cell;
    }
    ns::IndexPath willSelect(TableKind, ns::IndexPath path) {
        return path.item() == 2 ? ns::IndexPath() : path;
    }
    template <char Letter>
    void note(TableKind, ns::IndexPath path) {
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
    [[nodiscard]] TableCellKind cellAt(ns::IndexPath where) const {
        return table_.send<"cellForRowAtIndexPath:", TableCellKind>(where);
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
    TableKind table_ = TableKind::make<"initWithFrame:style:">(CGRect{{0, 100}, {300, 440}}, 0L);
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
    table_.send<"deselectRowAtIndexPath:animated:">(path(1), objc::Boolean(true));
    EXPECT_FALSE(selected());
    EXPECT_EQ(takeTold(), "");
    table_.send<"setAllowsMultipleSelection:">(objc::Boolean(true));
    tapRow(path(0));
    tapRow(path(1));
    tapRow(path(0));
    EXPECT_EQ(takeTold(), "s1.0 s1.1 d1.0 ");
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

TEST_F(TableViewTest, HeaderAndFooterViewsMoveTheRows) {
    const auto header = ui::View::withFrame({{0, 0}, {10, 60}});
    table_.send<"setTableHeaderView:">(header);
    table_.layoutIfNeeded();
    EXPECT_EQ(rect(path(0, 0)).origin.y, 60);
    EXPECT_EQ(header.frame(), (CGRect{{0, 0}, {300, 60}}));
    EXPECT_EQ(cellAt(path(0, 0)).frame().origin.y, 60);
}

} // namespace
