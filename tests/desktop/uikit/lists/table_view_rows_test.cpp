// Tables whose rows are as tall as their cells need, and whose rows are swiped.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/contextual_action.hpp"
#include "bindings/uikit/swipe_actions_configuration.hpp"
#include "bindings/uikit/table_view.hpp"

#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/lists/table_view.hpp"

namespace {

using namespace ns::literals;

struct NotesKind : objc::Kind<NotesKind, "WTTestNotes"> {
    using Kind::Kind;
};

/// A data source and delegate of rows with texts of one or more lines.
class Notes : public objc::Peer<Notes, NotesKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"tableView:numberOfRowsInSection:", &Notes::count>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Notes::cell>(),
            objc::method<"tableView:canEditRowAtIndexPath:", &Notes::mayEdit>(),
            objc::method<"tableView:commitEditingStyle:forRowAtIndexPath:", &Notes::commit>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Notes::select>(),
            objc::method<"tableView:trailingSwipeActionsConfigurationForRowAtIndexPath:",
                         &Notes::actions>(),
        };
    }
    std::vector<int> lines; // of each row's text
    long made = 0;
    long locked = -1; // the row that may not be edited
    std::string told;
    objc::Strong<ui::SwipeActionsConfiguration> configuration;

private:
    long count(ui::TableView, long) { return static_cast<long>(lines.size()); }
    ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) {
        ui::TableViewCell cell = table.dequeueReusableCell(u"Note"_ns);
        if (!cell) {
            ++made;
            cell = ui::TableViewCell::withStyle(ui::TableViewCellStyle::subtitle, u"Note"_ns);
            cell.textLabel().setNumberOfLines(0);
        }
        std::string text = std::to_string(path.item());
        for (int line = 1; line < lines.at(static_cast<std::size_t>(path.item())); ++line) {
            text += "\nline";
        }
        cell.textLabel().setText(ns::String::fromUtf8(text));
        cell.detailTextLabel().setText(u"detail"_ns);
        return cell;
    }
    bool mayEdit(ui::TableView, ns::IndexPath path) { return path.item() != locked; }
    void commit(ui::TableView table, ui::TableViewCellEditingStyle style, ns::IndexPath path) {
        told += "c" + std::to_string(static_cast<long>(style)) + "." + std::to_string(path.item()) +
                " ";
        lines.erase(lines.begin() + path.item());
        const auto paths = ns::MutableArray::make();
        paths.add(path);
        table.deleteRows(paths, ui::TableViewRowAnimation::automatic);
    }
    void select(ui::TableView, ns::IndexPath path) {
        told += "s" + std::to_string(path.item()) + " ";
    }
    ui::SwipeActionsConfiguration actions(ui::TableView, ns::IndexPath) { return configuration; }
};

class TableViewRows : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        Notes::registerClass();
    }
    TableViewRows() { show({1, 5, 1}); }
    ~TableViewRows() override {
        table_.setDataSource(nullptr);
        table_.setDelegate(nullptr);
    }
    void show(std::vector<int> lines) {
        notes().lines = std::move(lines);
        table_.setRowHeight(ui::TableView::automaticDimension);
        table_.setEstimatedRowHeight(230);
        table_.setDataSource(notes_);
        table_.setDelegate(notes_);
        window_.addSubview(table_);
        window_.layoutIfNeeded();
    }
    Notes& notes() { return Notes::of(notes_); }
    [[nodiscard]] CGRect rect(long row) const {
        return table_.send<"rectForRowAtIndexPath:", CGRect>(ns::IndexPath::forItem(row, 0));
    }
    [[nodiscard]] ui::TableViewCell cellAt(long row) const {
        return table_.send<"cellForRowAtIndexPath:", ui::TableViewCell>(
            ns::IndexPath::forItem(row, 0));
    }
    [[nodiscard]] CGPoint inRow(long row, double x) const {
        return table_.convertPoint({x, rect(row).origin.y + 20}, nullptr);
    }
    /// A finger that moves so far to the left, slowly enough not to flick.
    void swipe(long row, double far) {
        const CGPoint from = inRow(row, 290);
        down(from);
        for (double moved = 0; moved <= far; moved += 5) {
            desktop::run_loop::advance(0.05);
            move({from.x - moved, from.y});
        }
        desktop::run_loop::advance(1);
        move({from.x - far, from.y});
        up();
        desktop::run_loop::advance(1);
        window_.layoutIfNeeded();
    }
    std::string takeTold() { return std::exchange(notes().told, {}); }

    objc::Strong<NotesKind> notes_ = NotesKind::make();
    ui::TableView table_ =
        ui::TableView::withFrame({{0, 100}, {300, 440}}, ui::TableViewStyle::plain);
};

TEST_F(TableViewRows, AreAsTallAsTheirTexts) {
    EXPECT_GT(rect(0).size.height, 44) << "two lines with room around them";
    EXPECT_LT(rect(0).size.height, 70);
    EXPECT_NEAR(rect(1).size.height - rect(0).size.height, 4 * 20.4, 2);
    EXPECT_EQ(rect(1).origin.y, rect(0).size.height);
    EXPECT_EQ(table_.contentSize().height, rect(2).origin.y + rect(2).size.height);
    const CGRect label = cellAt(1).textLabel().frame();
    EXPECT_GE(label.origin.y, 0);
    EXPECT_LE(cellAt(1).detailTextLabel().frame().origin.y + 14, rect(1).size.height);
}

TEST_F(TableViewRows, CountAsTallAsEstimatedUntilTheyAreSeen) {
    show(std::vector<int>(10'000, 1));
    const double own = rect(0).size.height;
    EXPECT_LT(notes().made, 20);
    EXPECT_EQ(rect(9'999).size.height, 230);
    table_.setContentOffset({0, 230.0 * 5'000});
    window_.layoutIfNeeded();
    const long first =
        table_.send<"indexPathsForVisibleRows", ns::Array>().first().assume<ns::IndexPath>().item();
    EXPECT_EQ(rect(first).size.height, own);
}

TEST_F(TableViewRows, StayWhereTheyAreSeenWhenThoseAboveAreMeasured) {
    show(std::vector<int>(100, 1));
    table_.setContentOffset({0, 230.0 * 50});
    window_.layoutIfNeeded();
    const auto topMost = [this] {
        return table_.send<"indexPathsForVisibleRows", ns::Array>().first().assume<ns::IndexPath>();
    };
    const long row = topMost().item();
    const double before = rect(row).origin.y - table_.contentOffset().y;
    table_.setContentOffset({0, table_.contentOffset().y - 40});
    window_.layoutIfNeeded();
    EXPECT_LT(topMost().item(), row) << "others have come up above";
    EXPECT_NEAR(rect(row).origin.y - table_.contentOffset().y, before + 40, 0.01);
}

TEST_F(TableViewRows, OfferWhatTheSystemCanDoWithThem) {
    swipe(0, 60);
    const auto buttonAt = [](CGPoint point) {
        return desktop::TouchDispatcher::viewAt(point).as<ui::Button>();
    };
    ASSERT_TRUE(buttonAt(inRow(0, 270)));
    EXPECT_EQ(buttonAt(inRow(0, 270)).titleFor(ui::ControlState::normal).utf8(), "删除");
    EXPECT_EQ(cellAt(0).frame().origin.x, -74);
    tap(inRow(1, 50));
    EXPECT_EQ(takeTold(), "") << "the first touch elsewhere only closes it";
    EXPECT_FALSE(buttonAt(inRow(0, 270)));
    desktop::run_loop::advance(1);
    tap(inRow(1, 50));
    EXPECT_EQ(takeTold(), "s1 ");
    swipe(0, 60);
    tap(inRow(0, 270));
    window_.layoutIfNeeded();
    EXPECT_EQ(takeTold(), "c1.0 ");
    EXPECT_EQ(notes().lines, (std::vector<int>{5, 1}));
    EXPECT_EQ(cellAt(0).textLabel().text().utf8().substr(0, 2), "0\n");
}

TEST_F(TableViewRows, AShortSwipeIsTakenBackAndALongOneActs) {
    swipe(2, 25);
    EXPECT_EQ(cellAt(2).frame().origin.x, 0);
    EXPECT_EQ(takeTold(), "");
    swipe(2, 220);
    EXPECT_EQ(takeTold(), "c1.2 ");
}

TEST_F(TableViewRows, OfferNothingWhereTheyMayNotBeEdited) {
    notes().locked = 0;
    swipe(0, 100);
    EXPECT_EQ(cellAt(0).frame().origin.x, 0);
    desktop::TableView& table = desktop::TableView::of(table_);
    EXPECT_TRUE(table.actionsOf({0, 0}).list.empty());
    EXPECT_EQ(table.actionsOf({0, 1}).list.size(), 1U);
}

TEST_F(TableViewRows, StandBesideTheNotch) {
    desktop::rotate(ui::InterfaceOrientation::landscapeLeft);
    table_.setFrame({{}, {844, 390}});
    window_.layoutIfNeeded();
    const auto cell = cellAt(0);
    cell.layoutIfNeeded();
    EXPECT_EQ(cell.frame().size.width, 844);
    EXPECT_EQ(cell.contentView().frame().origin.x, 47);
    EXPECT_EQ(cell.contentView().frame().size.width, 844 - 2 * 47);
    table_.setFrame({{100, 0}, {400, 390}});
    window_.layoutIfNeeded();
    cellAt(0).layoutIfNeeded();
    EXPECT_EQ(cellAt(0).contentView().frame().origin.x, 0) << "far from it";
    desktop::rotate(ui::InterfaceOrientation::portrait);
}

TEST_F(TableViewRows, OfferTheApplicationsOwnActionsFirst) {
    std::string done;
    const auto actions = ns::MutableArray::make();
    for (const auto title : {u"删"_ns, u"收"_ns}) {
        actions.add(ui::ContextualAction::with(
            title.isEqualToString(u"删"_ns) ? ui::ContextualActionStyle::destructive
                                            : ui::ContextualActionStyle::normal,
            title,
            ui::ContextualAction::Handler::from(
                [&done](ui::ContextualAction action, ui::View,
                        ui::ContextualAction::Completion completion) {
                    done += action.send<"title", ns::String>().utf8();
                    completion(true);
                })));
    }
    notes().configuration = ui::SwipeActionsConfiguration::with(actions);
    swipe(0, 100);
    EXPECT_EQ(cellAt(0).frame().origin.x, -2 * 74);
    tap(inRow(0, 300 - 74 - 20));
    EXPECT_EQ(done, "收") << "the first lies at the edge";
    desktop::run_loop::advance(1);
    EXPECT_EQ(cellAt(0).frame().origin.x, 0) << "the completion closes the row";
    EXPECT_EQ(takeTold(), "");
}

} // namespace
