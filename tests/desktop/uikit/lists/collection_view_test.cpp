// Collection views: cells for what is seen, selection by code and by touch.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"

namespace {

using namespace ns::literals;

struct GridKind : objc::Kind<GridKind, "WTTestGrid"> {
    using Kind::Kind;
};

/// A data source and delegate that writes down what it is told.
class Grid : public objc::Peer<Grid, GridKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"collectionView:numberOfItemsInSection:", &Grid::count>(),
            objc::method<"collectionView:cellForItemAtIndexPath:", &Grid::cell>(),
            objc::method<"collectionView:layout:sizeForItemAtIndexPath:", &Grid::size>(),
            objc::method<"collectionView:shouldSelectItemAtIndexPath:", &Grid::should>(),
            objc::method<"collectionView:didHighlightItemAtIndexPath:", &Grid::note<'h'>>(),
            objc::method<"collectionView:didUnhighlightItemAtIndexPath:", &Grid::note<'u'>>(),
            objc::method<"collectionView:didSelectItemAtIndexPath:", &Grid::note<'s'>>(),
            objc::method<"collectionView:didDeselectItemAtIndexPath:", &Grid::note<'d'>>(),
        };
    }
    long items = 20'000;
    long asked = 0;
    bool selectable = true;
    std::string told;

private:
    long count(ui::CollectionView, long) { return items; }
    ui::CollectionViewCell cell(ui::CollectionView view, ns::IndexPath path) {
        ++asked;
        const auto cell = view.dequeueReusableCell(u"Cell"_ns, path);
        cell.setTag(path.item());
        return cell;
    }
    CGSize size(ui::CollectionView, ui::CollectionViewLayout, ns::IndexPath path) {
        return {path.item() % 2 == 0 ? 40.0 : 50.0, 30};
    }
    bool should(ui::CollectionView, ns::IndexPath) { return selectable; }
    template <char Letter>
    void note(ui::CollectionView, ns::IndexPath path) {
        told += Letter + std::to_string(path.item()) + ' ';
    }
};

class CollectionViewTest : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        Grid::registerClass();
    }
    CollectionViewTest() {
        const auto flow = ui::CollectionViewFlowLayout::make();
        flow.setMinimumInteritemSpacing(2);
        flow.setMinimumLineSpacing(4.5);
        view_ = ui::CollectionView::withFrame({{0, 100}, {200, 300}}, flow);
        view_.registerClass(ui::CollectionViewCell::classObject(), u"Cell"_ns);
        view_.setDataSource(grid_);
        view_.setDelegate(grid_);
        window_.addSubview(view_);
        window_.layoutIfNeeded();
    }
    ~CollectionViewTest() override {
        view_.setDataSource(nullptr);
        view_.setDelegate(nullptr);
    }
    Grid& grid() { return Grid::of(grid_); }
    static ns::IndexPath path(long item) { return ns::IndexPath::forItem(item, 0); }
    [[nodiscard]] unsigned long cells() const {
        return view_.send<"visibleCells", ns::Array>().count();
    }
    [[nodiscard]] unsigned long selected() const {
        return view_.send<"indexPathsForSelectedItems", ns::Array>().count();
    }
    [[nodiscard]] bool isMarked(long item) const {
        return view_.cellForItem(path(item)).send<"isSelected", bool>();
    }
    std::string takeTold() { return std::exchange(grid().told, {}); }
    /// Taps the middle of a visible item.
    void tapItem(long item) {
        const CGRect frame = view_.cellForItem(path(item)).frame();
        tap(view_.convertPoint({frame.origin.x + 5, frame.origin.y + 5}, nullptr));
    }

    objc::Strong<GridKind> grid_ = GridKind::make();
    objc::Strong<ui::CollectionView> view_;
};

TEST_F(CollectionViewTest, OnlyWhatIsSeenExistsAndCellsAreUsedAgain) {
    const long first = grid().asked;
    EXPECT_GT(cells(), 30U);
    EXPECT_LT(cells(), 50U);
    EXPECT_LE(first, 50);
    const auto farDown = view_.contentSize().height - 300;
    EXPECT_GT(farDown, 100'000);
    view_.setContentOffset({0, farDown});
    view_.layoutIfNeeded();
    EXPECT_LT(cells(), 50U);
    EXPECT_LE(grid().asked, 2 * first + 20);
    EXPECT_EQ(view_.subviews().count(), cells());
    EXPECT_FALSE(view_.cellForItem(path(0)));
    EXPECT_EQ(view_.cellForItem(path(19'999)).tag(), 19'999);
}

TEST_F(CollectionViewTest, ItemsAreFoundByPoint) {
    EXPECT_EQ(view_.indexPathForItem({10, 10}).item(), 0);
    const CGRect second = view_.cellForItem(path(1)).frame();
    EXPECT_EQ(second.size, (CGSize{50, 30}));
    EXPECT_EQ(view_.indexPathForItem({second.origin.x + 1, 1}).item(), 1);
    EXPECT_FALSE(view_.indexPathForItem({10, 32})) << "between two lines";
    EXPECT_FALSE(view_.indexPathForItem({-5, 10}));
}

TEST_F(CollectionViewTest, SelectingByCodeTellsNobody) {
    view_.setAllowsMultipleSelection(true);
    view_.selectItem(path(2), false, ui::CollectionViewScrollPosition::none);
    view_.selectItem(path(19'000), false, ui::CollectionViewScrollPosition::none);
    view_.selectItem(path(99'999), false, ui::CollectionViewScrollPosition::none);
    EXPECT_EQ(selected(), 2U);
    EXPECT_TRUE(isMarked(2));
    EXPECT_EQ(view_.contentOffset().y, 0);
    view_.selectItem(path(19'000), false, ui::CollectionViewScrollPosition::top);
    view_.layoutIfNeeded();
    EXPECT_TRUE(isMarked(19'000));
    view_.deselectItem(path(19'000), false);
    EXPECT_FALSE(isMarked(19'000));
    EXPECT_EQ(takeTold(), "");
    view_.reloadData();
    EXPECT_EQ(selected(), 0U);
}

TEST_F(CollectionViewTest, OneItemAtATimeBySelectionByTouch) {
    tapItem(3);
    tapItem(5);
    EXPECT_EQ(takeTold(), "h3 u3 s3 h5 u5 d3 s5 ");
    EXPECT_TRUE(isMarked(5));
    EXPECT_FALSE(isMarked(3));
    grid().selectable = false;
    tapItem(3);
    EXPECT_EQ(takeTold(), "h3 u3 ");
    EXPECT_EQ(selected(), 1U);
    view_.send<"setAllowsSelection:">(false);
    tapItem(3);
    EXPECT_EQ(takeTold(), "");
}

TEST_F(CollectionViewTest, SeveralItemsByTouchAndOffAgain) {
    view_.setAllowsMultipleSelection(true);
    tapItem(3);
    tapItem(5);
    tapItem(3);
    EXPECT_EQ(takeTold(), "h3 u3 s3 h5 u5 s5 h3 u3 d3 ");
    EXPECT_EQ(selected(), 1U);
}

TEST_F(CollectionViewTest, AScrollIsNoTap) {
    down({20, 300});
    move({20, 250});
    move({20, 200});
    up();
    EXPECT_EQ(takeTold(), "h" + std::to_string(view_.indexPathForItem({20, 200}).item()) + " u" +
                              std::to_string(view_.indexPathForItem({20, 200}).item()) + " ");
    EXPECT_GT(view_.contentOffset().y, 50);
    EXPECT_EQ(selected(), 0U);
}

TEST_F(CollectionViewTest, InsertedAndDeletedItemsShiftTheSelection) {
    view_.setAllowsMultipleSelection(true);
    view_.selectItem(path(2), false, ui::CollectionViewScrollPosition::none);
    view_.selectItem(path(7), false, ui::CollectionViewScrollPosition::none);
    grid().items -= 1;
    const auto third = ns::MutableArray::make();
    third.add(path(2));
    bool completed = false;
    view_.send<"performBatchUpdates:completion:">(
        objc::Block<void()>::from([&] { view_.send<"deleteItemsAtIndexPaths:">(third.raw()); }),
        objc::Block<void(bool)>::from([&](bool) { completed = true; }));
    view_.layoutIfNeeded();
    desktop::run_loop::runUntilIdle();
    EXPECT_TRUE(completed);
    EXPECT_EQ(selected(), 1U);
    EXPECT_TRUE(isMarked(6));
    grid().items = 4;
    view_.reloadData();
    view_.layoutIfNeeded();
    EXPECT_EQ(cells(), 4U);
}

TEST_F(CollectionViewTest, ALayoutFollowsTheViewsWidth) {
    view_.setFrame({{0, 100}, {100, 300}});
    view_.layoutIfNeeded();
    EXPECT_EQ(view_.cellForItem(path(2)).frame().origin.y, 34.5) << "two in a line now";
    view_.setFrame({{0, 100}, {0, 0}});
    view_.layoutIfNeeded();
}

} // namespace
