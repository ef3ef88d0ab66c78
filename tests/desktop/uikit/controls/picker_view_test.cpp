// Pickers: wheels that come to rest on a row, and tell of it when a finger turned them.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/label.hpp"
#include "bindings/uikit/picker_view.hpp"
#include "desktop/uikit/controls/picker_rules.hpp"
#include "desktop/uikit/controls/picker_view.hpp"

#include <cmath>

namespace {

TEST(PickerRules, RowsBendAroundTheWheel) {
    const auto middle = desktop::wheelPlace(0, 108);
    EXPECT_EQ(middle.offset, 0);
    EXPECT_EQ(middle.scale, 1);
    EXPECT_EQ(middle.alpha, 1);
    const auto next = desktop::wheelPlace(-32, 108);
    EXPECT_NEAR(next.offset, -31.5, 0.1);
    EXPECT_LT(next.scale, 1);
    EXPECT_EQ(desktop::wheelPlace(500, 108).alpha, 0);
    EXPECT_NEAR(desktop::wheelDistance(desktop::wheelPlace(77, 108).offset, 108), 77, 1e-9);
    EXPECT_EQ(desktop::wheelRow(100, 32, 10), 3);
    EXPECT_EQ(desktop::wheelRow(1e9, 32, 10), 9);
    EXPECT_EQ(desktop::wheelRow(-50, 32, 10), 0);
    EXPECT_EQ(desktop::wheelRow(std::nan(""), 32, 10), 0);
    EXPECT_EQ(desktop::wheelRow(100, 32, 0), 0);
}

struct FontsKind : objc::Kind<FontsKind, "WTTestFonts"> {
    using Kind::Kind;
};

class Fonts : public objc::Peer<Fonts, FontsKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"numberOfComponentsInPickerView:", &Fonts::components>(),
            objc::method<"pickerView:numberOfRowsInComponent:", &Fonts::count>(),
            objc::method<"pickerView:titleForRow:forComponent:", &Fonts::title>(),
            objc::method<"pickerView:didSelectRow:inComponent:", &Fonts::chose>(),
        };
    }
    long rows = 300;
    std::vector<long> chosen;

private:
    long components(ui::View) { return 1; }
    long count(ui::View, long) { return rows; }
    ns::String title(ui::View, long row, long) {
        return ns::String::fromUtf8("Font " + std::to_string(row));
    }
    void chose(ui::View, long row, long) { chosen.push_back(row); }
};

class PickerViewTest : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        Fonts::registerClass();
    }
    PickerViewTest() {
        picker_.setCenter({195, 400}); // from 292 to 508
        picker_.send<"setDataSource:">(fonts_.raw());
        picker_.send<"setDelegate:">(fonts_.raw());
        window_.addSubview(picker_);
        window_.layoutIfNeeded();
    }
    ~PickerViewTest() override {
        picker_.send<"setDataSource:">(objc::Object());
        picker_.send<"setDelegate:">(objc::Object());
    }
    [[nodiscard]] long row() const { return picker_.send<"selectedRowInComponent:", long>(0L); }
    std::vector<long> takeChosen() { return std::exchange(Fonts::of(fonts_).chosen, {}); }

    objc::Strong<FontsKind> fonts_ = FontsKind::make();
    ui::PickerView picker_ = ui::PickerView::make<"initWithFrame:">(CGRect());
};

TEST_F(PickerViewTest, HasItsStandardSizeAndFewRowViews) {
    EXPECT_EQ(picker_.frame().size, (CGSize{320, 216}));
    const auto first = picker_.send<"viewForRow:forComponent:", ui::Label>(0L, 0L);
    EXPECT_EQ(first.text().utf8(), "Font 0");
    EXPECT_NEAR(picker_.convertPoint({0, 108}, nullptr).y, first.convertPoint({0, 16}, nullptr).y,
                1e-6);
    EXPECT_FALSE((picker_.send<"viewForRow:forComponent:", ui::View>(20L, 0L)));
}

TEST_F(PickerViewTest, SelectingByCodeTurnsTheWheelAndTellsNobody) {
    picker_.send<"selectRow:inComponent:animated:">(200L, 0L, objc::Boolean(false));
    EXPECT_EQ(row(), 200);
    picker_.send<"selectRow:inComponent:animated:">(205L, 0L, objc::Boolean(true));
    desktop::run_loop::advance(1);
    EXPECT_EQ(row(), 205);
    picker_.send<"selectRow:inComponent:animated:">(9999L, 0L, objc::Boolean(false));
    EXPECT_EQ(row(), 299);
    EXPECT_TRUE(takeChosen().empty());
    Fonts::of(fonts_).rows = 3;
    picker_.send<"reloadAllComponents">();
    EXPECT_EQ(row(), 2);
}

TEST_F(PickerViewTest, AFingerTurnsTheWheelWhichRestsOnARow) {
    down({195, 400});
    for (int step = 1; step <= 10; ++step) {
        desktop::run_loop::advance(0.05);
        move({195, 400 - 9.0 * step});
    }
    desktop::run_loop::advance(0.3);
    up();
    EXPECT_TRUE(takeChosen().empty());
    desktop::run_loop::advance(2);
    EXPECT_EQ(row(), 3); // 80 points of 32 each
    EXPECT_EQ(takeChosen(), std::vector<long>{3});
}

TEST_F(PickerViewTest, ATapBringsARowToTheMiddle) {
    tap({195, 431});
    desktop::run_loop::advance(1);
    EXPECT_EQ(row(), 1);
    EXPECT_EQ(takeChosen(), std::vector<long>{1});
}

} // namespace
