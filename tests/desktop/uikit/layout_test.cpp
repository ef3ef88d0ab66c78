// Labels measure themselves, stacks arrange what is in them, and the screen shows it.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/stack_view.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "desktop/drawing/image.hpp"

#include <filesystem>

namespace {

using namespace ns::literals;

class LayoutTest : public tests::UIKitTest {};

ui::Label labelWith(ns::String text, long lines = 1) {
    const auto label = ui::Label::withFrame({});
    label.setNumberOfLines(lines);
    label.setText(text);
    return label;
}

TEST_F(LayoutTest, LabelsAreAsLargeAsTheirText) {
    const auto one = labelWith(u"你好 Hello"_ns);
    const auto three = labelWith(u"一\n二\n三"_ns, 0);
    const double line = one.font().lineHeight();
    EXPECT_NEAR(one.intrinsicContentSize().height, line, 1);
    EXPECT_NEAR(three.intrinsicContentSize().height, 3 * line, 2);
    EXPECT_NEAR(labelWith(u"一\n二\n三"_ns, 2).intrinsicContentSize().height, 2 * line, 2);
    const auto longText = labelWith(u"这一行很长，放不进一百点的宽度，所以要折成好几行。"_ns, 0);
    const CGSize narrow = longText.sizeThatFits({100, 0});
    EXPECT_LE(narrow.width, 100);
    EXPECT_GT(narrow.height, 3 * line);
    one.setFont(one.font().withSize(34));
    EXPECT_NEAR(one.intrinsicContentSize().height, one.font().lineHeight(), 1);
    EXPECT_EQ(labelWith(nullptr).intrinsicContentSize().width, 0);
}

TEST_F(LayoutTest, StacksPlaceByDistributionAndAlignment) {
    struct Case {
        ui::Axis axis;
        ui::StackDistribution distribution;
        ui::StackAlignment alignment;
        CGRect first;
        CGRect last;
    };
    using enum ui::StackDistribution;
    for (const auto& [axis, distribution, alignment, first, last] : {
             Case{ui::Axis::vertical,
                  fill,
                  ui::StackAlignment::fill,
                  {{0, 0}, {100, 10}},
                  {{0, 50}, {100, 150}}},
             Case{ui::Axis::vertical,
                  fillEqually,
                  ui::StackAlignment::leading,
                  {{0, 0}, {30, 60}},
                  {{0, 140}, {50, 60}}},
             Case{ui::Axis::vertical,
                  equalSpacing,
                  ui::StackAlignment::center,
                  {{35, 0}, {30, 10}},
                  {{25, 170}, {50, 30}}},
             Case{ui::Axis::horizontal,
                  equalSpacing,
                  ui::StackAlignment::trailing,
                  {{0, 190}, {30, 10}},
                  {{70, 170}, {50, 30}}},
         }) {
        const bool row = axis == ui::Axis::horizontal;
        const auto stack = ui::StackView::withFrame({{0, 0}, {row ? 120.0 : 100.0, 200}});
        stack.setAxis(axis);
        stack.setDistribution(distribution);
        stack.setAlignment(alignment);
        stack.setSpacing(10);
        const auto a = ui::View::withFrame({{0, 0}, {30, 10}});
        const auto hidden = ui::View::withFrame({{0, 0}, {1000, 1000}});
        const auto b = ui::View::withFrame({{0, 0}, {row ? 20.0 : 40.0, 20}});
        const auto c = ui::View::withFrame({{0, 0}, {50, 30}});
        hidden.setHidden(true);
        for (const ui::View view : {a, hidden, b, c}) {
            stack.addArrangedSubview(view);
        }
        stack.layoutIfNeeded();
        EXPECT_EQ(a.frame(), first) << static_cast<long>(distribution);
        EXPECT_EQ(c.frame(), last) << static_cast<long>(distribution);
    }
}

TEST_F(LayoutTest, StacksGrowWithTheirLabelsAndForgetRemovedViews) {
    const auto stack = ui::StackView::withFrame({});
    stack.setAxis(ui::Axis::vertical);
    const auto label = labelWith(u"一行"_ns, 0);
    stack.addArrangedSubview(label);
    const double before = stack.intrinsicContentSize().height;
    label.setText(u"一行\n两行"_ns);
    EXPECT_GT(stack.intrinsicContentSize().height, 1.5 * before);
    label.removeFromSuperview();
    EXPECT_EQ(stack.arrangedSubviews().count(), 0U);
    EXPECT_EQ(stack.intrinsicContentSize(), (CGSize{0, 0}));
}

TEST_F(LayoutTest, TheScreenShowsColoursRoundCornersBordersAndOpacity) {
    const auto window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
    window.setBackgroundColor(ui::Color::white());
    const auto box = ui::View::withFrame({{100, 300}, {100, 100}});
    box.setBackgroundColor(ui::Color::withRed(1, 0, 0, 1));
    box.layer().setCornerRadius(20);
    box.layer().setBorderWidth(4);
    box.layer().setBorderColor(ui::Color::withRed(0, 0, 1, 1).cgColor());
    box.setClipsToBounds(true);
    const auto inner = ui::View::withFrame({{0, 0}, {50, 50}});
    inner.setBackgroundColor(ui::Color::black());
    inner.setAlpha(0.5);
    box.addSubview(inner);
    const auto hidden = ui::View::withFrame({{100, 300}, {100, 100}});
    hidden.setBackgroundColor(ui::Color::black());
    hidden.setHidden(true);
    window.addSubview(box);
    window.addSubview(hidden);
    window.makeKeyAndVisible();

    const std::filesystem::path file = testing::TempDir() + "wentra_screen_test.png";
    desktop::uikit::renderScreen(file.string());
    const auto picture = desktop::Image::load(file);
    std::filesystem::remove(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixelWidth(), 1170);
    EXPECT_EQ(picture->pixelHeight(), 2532);
    const auto at = [&](int x, int y) { return picture->pixel(3 * x, 3 * y); };
    EXPECT_EQ(at(180, 380), (desktop::Colour{1, 0, 0, 1}));
    EXPECT_EQ(at(150, 302), (desktop::Colour{0, 0, 1, 1})) << "the border";
    EXPECT_EQ(at(101, 301), (desktop::Colour{1, 1, 1, 1})) << "outside of the round corner";
    EXPECT_NEAR(at(130, 330).red, 0.5, 0.01) << "half of the red shows through";
    EXPECT_THROW(desktop::uikit::renderScreen("/nonexistent/folder/screen.png"),
                 std::runtime_error);
}

} // namespace
