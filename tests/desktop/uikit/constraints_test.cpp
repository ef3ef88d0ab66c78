// Constraints: views are where their anchors say.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/layout_anchor.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_guide.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "desktop/uikit/constraints/layout_anchor.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"

#include <cmath>

namespace {

using namespace ns::literals;

class ConstraintsTest : public tests::UIKitTest {
protected:
    static ui::View constrained(ui::View parent) {
        const auto view = ui::View::withFrame({});
        add(parent, view);
        return view;
    }
    static void add(ui::View parent, ui::View view) {
        view.send<"setTranslatesAutoresizingMaskIntoConstraints:">(objc::Boolean(false));
        parent.addSubview(view);
    }
    template <objc::Literal Name>
    static ui::LayoutAnchor anchor(objc::Object item) {
        return item.send<Name, ui::LayoutAnchor>();
    }
    static ui::LayoutConstraint on(ui::LayoutConstraint constraint) {
        constraint.send<"setActive:">(objc::Boolean(true));
        return constraint;
    }
    static ui::LayoutConstraint equal(ui::LayoutAnchor one, ui::LayoutAnchor other,
                                      double constant = 0) {
        return on(
            one.send<"constraintEqualToAnchor:constant:", ui::LayoutConstraint>(other, constant));
    }
    static ui::LayoutConstraint length(ui::LayoutAnchor one, double points) {
        return on(one.send<"constraintEqualToConstant:", ui::LayoutConstraint>(points));
    }
    /// All four edges, `gap` inside of the other item's.
    static void fill(ui::View view, objc::Object other, double gap) {
        equal(anchor<"leadingAnchor">(view), anchor<"leadingAnchor">(other), gap);
        equal(anchor<"trailingAnchor">(view), anchor<"trailingAnchor">(other), -gap);
        equal(anchor<"topAnchor">(view), anchor<"topAnchor">(other), gap);
        equal(anchor<"bottomAnchor">(view), anchor<"bottomAnchor">(other), -gap);
    }

    ui::View root = ui::View::withFrame({{10, 10}, {300, 400}});
};

TEST_F(ConstraintsTest, EdgesSizesAndCentresPlaceViews) {
    const auto box = constrained(root);
    fill(box, root, 20);
    const auto dot = constrained(box);
    equal(anchor<"centerXAnchor">(dot), anchor<"centerXAnchor">(box));
    equal(anchor<"centerYAnchor">(dot), anchor<"centerYAnchor">(box), 10);
    on(anchor<"widthAnchor">(dot)
           .send<"constraintEqualToAnchor:multiplier:constant:", ui::LayoutConstraint>(
               anchor<"widthAnchor">(box), 0.25, 5.0));
    const auto height = length(anchor<"heightAnchor">(dot), 30);
    root.layoutIfNeeded();
    EXPECT_EQ(box.frame(), (CGRect{{20, 20}, {260, 360}}));
    EXPECT_EQ(dot.frame(), (CGRect{{95, 175}, {70, 30}}));

    height.send<"setConstant:">(50.0);
    root.setFrame({{0, 0}, {400, 400}});
    root.layoutIfNeeded();
    EXPECT_EQ(box.frame().size.width, 360);
    EXPECT_EQ(dot.frame().size, (CGSize{95, 50}));
}

TEST_F(ConstraintsTest, SiblingsInequalitiesAndPriorities) {
    const auto a = constrained(root);
    const auto b = constrained(root);
    for (const ui::View view : {a, b}) {
        equal(anchor<"topAnchor">(view), anchor<"topAnchor">(root));
        length(anchor<"heightAnchor">(view), 10);
    }
    equal(anchor<"leftAnchor">(a), anchor<"leftAnchor">(root));
    equal(anchor<"leftAnchor">(b), anchor<"rightAnchor">(a), 8);
    equal(anchor<"rightAnchor">(b), anchor<"rightAnchor">(root));
    on(anchor<"widthAnchor">(a).send<"constraintLessThanOrEqualToConstant:", ui::LayoutConstraint>(
        100.0));
    const auto wish =
        anchor<"widthAnchor">(a).send<"constraintEqualToConstant:", ui::LayoutConstraint>(250.0);
    wish.send<"setPriority:">(700.0F);
    on(wish);
    root.layoutIfNeeded();
    EXPECT_EQ(a.frame(), (CGRect{{0, 0}, {100, 10}}));
    EXPECT_EQ(b.frame(), (CGRect{{108, 0}, {192, 10}}));
}

TEST_F(ConstraintsTest, LabelsClingToTheirTextAndWrapWhereTheyMust) {
    const auto one = ui::Label::withFrame({});
    const auto two = ui::Label::withFrame({});
    one.setText(u"标题 Title"_ns);
    two.setText(u"这一行很长，放不进三百点的宽度，所以要折成好几行才看得完，一行一行往下。"_ns);
    two.setNumberOfLines(0);
    for (const ui::View label : {static_cast<ui::View>(one), static_cast<ui::View>(two)}) {
        add(root, label);
        equal(anchor<"leadingAnchor">(label), anchor<"leadingAnchor">(root), 10);
        on(anchor<"trailingAnchor">(label)
               .send<"constraintLessThanOrEqualToAnchor:", ui::LayoutConstraint>(
                   anchor<"trailingAnchor">(root)));
    }
    equal(anchor<"topAnchor">(one), anchor<"topAnchor">(root));
    equal(anchor<"topAnchor">(two), anchor<"bottomAnchor">(one), 4);
    root.layoutIfNeeded();
    const double line = one.font().lineHeight();
    EXPECT_NEAR(one.frame().size.width, one.intrinsicContentSize().width, 1);
    EXPECT_NEAR(one.frame().size.height, line, 1);
    EXPECT_GT(two.frame().size.height, 2 * line - 2);
    EXPECT_LE(two.frame().size.width, 290.01);
    EXPECT_NEAR(two.frame().origin.y, one.frame().size.height + 4, 0.4);
    const double before = one.frame().size.width;
    one.setText(u"标题 Title 更长一点"_ns);
    root.layoutIfNeeded();
    EXPECT_GT(one.frame().size.width, before + 20);
}

TEST_F(ConstraintsTest, GuidesAndMarginsAndTheSafeArea) {
    const auto window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
    const auto safe = constrained(window);
    fill(safe, window.send<"safeAreaLayoutGuide", objc::Object>(), 0);
    const auto inMargins = constrained(safe);
    fill(inMargins, safe.send<"layoutMarginsGuide", objc::Object>(), 0);
    const auto guide = ui::LayoutGuide::make();
    window.send<"addLayoutGuide:">(guide);
    equal(anchor<"topAnchor">(guide), anchor<"topAnchor">(safe), 100);
    length(anchor<"heightAnchor">(guide), 7);
    window.layoutIfNeeded();
    EXPECT_EQ(safe.frame(), (CGRect{{0, 47}, {390, 763}}));
    EXPECT_EQ(inMargins.frame(), (CGRect{{8, 8}, {374, 747}}));
    const auto frame = guide.send<"layoutFrame", CGRect>();
    EXPECT_EQ(frame.origin.y, 147);
    EXPECT_EQ(frame.size.height, 7);
    window.send<"removeLayoutGuide:">(guide);
    window.layoutIfNeeded();
}

TEST_F(ConstraintsTest, AScrollViewsContentIsAsLargeAsConstraintsMakeIt) {
    const auto scroll = ui::ScrollView::withFrame({{0, 0}, {300, 400}});
    root.addSubview(scroll);
    const auto content = constrained(scroll);
    fill(content, scroll, 10);
    equal(anchor<"widthAnchor">(content), anchor<"widthAnchor">(scroll), -20);
    length(anchor<"heightAnchor">(content), 2000);
    root.layoutIfNeeded();
    EXPECT_EQ(scroll.contentSize(), (CGSize{300, 2020}));
    scroll.setContentOffset({0, 500});
    root.layoutIfNeeded();
    EXPECT_EQ(content.frame(), (CGRect{{10, 10}, {280, 2000}}));
}

TEST_F(ConstraintsTest, TheSizeThatFitsConstraints) {
    const auto inner = constrained(root);
    fill(inner, root, 15);
    length(anchor<"heightAnchor">(inner), 70);
    on(anchor<"widthAnchor">(inner)
           .send<"constraintGreaterThanOrEqualToConstant:", ui::LayoutConstraint>(40.0));
    EXPECT_EQ((root.send<"systemLayoutSizeFittingSize:", CGSize>(CGSize{0, 0})), (CGSize{70, 100}));
    EXPECT_EQ((root.send<"systemLayoutSizeFittingSize:", CGSize>(CGSize{500, 0})),
              (CGSize{500, 100}));
}

TEST_F(ConstraintsTest, WhatLeavesTakesItsConstraintsAlong) {
    const auto child = constrained(root);
    const auto across = equal(anchor<"leftAnchor">(child), anchor<"leftAnchor">(root), 5);
    const auto own = length(anchor<"widthAnchor">(child), 50);
    EXPECT_EQ((root.send<"constraints", ns::Array>().count()), 1U);
    child.removeFromSuperview();
    EXPECT_FALSE((across.send<"isActive", bool>()));
    EXPECT_TRUE((own.send<"isActive", bool>()));
    root.layoutIfNeeded();
    EXPECT_ANY_THROW(on(across)) << "no view in common";

    objc::Strong<ui::LayoutConstraint> kept;
    {
        const objc::Pool pool;
        const auto lone = ui::View::withFrame({});
        kept = length(anchor<"widthAnchor">(lone), 50);
    }
    EXPECT_FALSE((kept.send<"isActive", bool>())) << "its view is gone";
    on(kept);
}

TEST_F(ConstraintsTest, ConflictsAndBadNumbersAreSurvived) {
    const auto box = constrained(root);
    equal(anchor<"leftAnchor">(box), anchor<"leftAnchor">(root));
    length(anchor<"widthAnchor">(box), 50);
    length(anchor<"widthAnchor">(box), 80);
    length(anchor<"heightAnchor">(box), INFINITY);
    EXPECT_ANY_THROW(length(anchor<"heightAnchor">(box), std::nan("")));
    root.layoutIfNeeded();
    EXPECT_TRUE(box.frame().size.width == 50 || box.frame().size.width == 80);
    EXPECT_TRUE(std::isfinite(box.frame().size.height));
}

TEST_F(ConstraintsTest, FramesThatAreSetStayAsTheyAre) {
    const auto plain = ui::View::withFrame({{1, 2}, {3, 4}});
    root.addSubview(plain);
    const auto box = constrained(root);
    equal(anchor<"leftAnchor">(box), anchor<"rightAnchor">(plain), 6);
    length(anchor<"widthAnchor">(box), 10);
    root.layoutIfNeeded();
    EXPECT_EQ(plain.frame(), (CGRect{{1, 2}, {3, 4}}));
    EXPECT_EQ(box.frame().origin.x, 10);
}

} // namespace
