// Scroll views under fingers: what moves, what the delegate hears, and where content comes to rest.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/control.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "desktop/uikit/scrolling/wheel.hpp"

#include <cmath>

namespace {

struct ScrollLogKind : objc::Kind<ScrollLogKind, "WTTestScrollLog"> {
    using Kind::Kind;
};

/// A delegate that writes down what it hears; runs of `s`, for scrolled, are written once.
class ScrollLog : public objc::Peer<ScrollLog, ScrollLogKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"scrollViewDidScroll:", &ScrollLog::note<'s'>>(),
            objc::method<"scrollViewWillBeginDragging:", &ScrollLog::note<'D'>>(),
            objc::method<"scrollViewDidEndDragging:willDecelerate:", &ScrollLog::endDrag>(),
            objc::method<"scrollViewWillBeginDecelerating:", &ScrollLog::note<'G'>>(),
            objc::method<"scrollViewDidEndDecelerating:", &ScrollLog::note<'g'>>(),
            objc::method<"scrollViewDidEndScrollingAnimation:", &ScrollLog::note<'a'>>(),
        };
    }
    std::string heard;
    std::function<void(char)> then;

private:
    template <char Letter>
    void note(ui::ScrollView) {
        if (Letter != 's' || !heard.ends_with('s')) {
            heard += Letter;
        }
        react(Letter);
    }
    void endDrag(ui::ScrollView, bool decelerates) {
        heard += decelerates ? "d+" : "d-";
        react('d');
    }
    void react(char letter) const {
        if (then) {
            then(letter);
        }
    }
};

class ScrollViewTest : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        ScrollLog::registerClass();
    }
    ScrollViewTest() {
        scroll_.setContentSize({200, 3000});
        scroll_.send<"setDelegate:">(delegate_.raw());
        window_.addSubview(scroll_);
        window_.layoutIfNeeded();
    }
    ~ScrollViewTest() override { scroll_.send<"setDelegate:">(objc::Object()); }
    static void advance(double seconds) { desktop::run_loop::advance(seconds); }
    [[nodiscard]] double top() const { return scroll_.contentOffset().y; }
    [[nodiscard]] std::string heard() const {
        return std::exchange(ScrollLog::of(delegate_).heard, {});
    }
    /// Drags upright in ten even steps; the finger stays down.
    static void drag(double from, double to, double seconds) {
        constexpr int steps = 10;
        down({150, from});
        for (int step = 1; step <= steps; ++step) {
            advance(seconds / steps);
            move({150, from + (to - from) * step / steps});
        }
    }

    ui::ScrollView scroll_ = ui::ScrollView::withFrame({{100, 100}, {200, 400}});
    objc::Strong<ScrollLogKind> delegate_ = ScrollLogKind::make();
};

TEST_F(ScrollViewTest, ContentFollowsTheFingerAndStaysWhenItRested) {
    drag(450, 250, 0.5);
    EXPECT_TRUE((scroll_.send<"isDragging", bool>()));
    EXPECT_NEAR(top(), 190, 1e-9) << "less what it took to tell the drag";
    advance(0.3);
    up();
    EXPECT_EQ(heard(), "Dsd-");
    advance(3);
    EXPECT_NEAR(top(), 190, 1e-9);
    EXPECT_FALSE((scroll_.send<"isTracking", bool>()));
}

TEST_F(ScrollViewTest, AFlingGoesOnAndComesToRest) {
    drag(450, 250, 0.2);
    up();
    EXPECT_TRUE((scroll_.send<"isDecelerating", bool>()));
    advance(0.2);
    const double underWay = top();
    EXPECT_GT(underWay, 300);
    advance(5);
    EXPECT_GT(top(), underWay + 100);
    EXPECT_NEAR(top(), 190 + 1000 * 0.4995, 5);
    EXPECT_EQ(heard(), "Dsd+Gsg");
}

TEST_F(ScrollViewTest, ATouchStopsAFling) {
    drag(450, 250, 0.2);
    up();
    advance(0.2);
    const double stopped = top();
    down({150, 300});
    EXPECT_FALSE((scroll_.send<"isDecelerating", bool>()));
    up();
    advance(3);
    EXPECT_EQ(top(), stopped);
    EXPECT_EQ(heard(), "Dsd+Gsg");
}

TEST_F(ScrollViewTest, BeyondItsEndsContentYieldsAndReturns) {
    drag(150, 350, 0.5);
    EXPECT_LT(top(), -60);
    EXPECT_GT(top(), -190);
    up();
    advance(0.1);
    EXPECT_LT(top(), 0);
    down({150, 300}); // caught on its way back
    up();
    advance(3);
    EXPECT_EQ(top(), 0);

    scroll_.send<"setBounces:">(false);
    drag(150, 350, 0.5);
    EXPECT_EQ(top(), 0);
    up();
}

TEST_F(ScrollViewTest, WhatDoesNotScrollLeavesTheDragToOthers) {
    scroll_.setContentSize({200, 300});
    drag(450, 250, 0.5);
    EXPECT_EQ(top(), 0);
    up();
    scroll_.send<"setAlwaysBounceVertical:">(true);
    drag(450, 250, 0.5);
    EXPECT_GT(top(), 50);
    up();
    scroll_.send<"setScrollEnabled:">(false);
    advance(3);
    drag(450, 250, 0.5);
    EXPECT_EQ(top(), 0);
    up();
    EXPECT_EQ(heard(), "Dsd+Gsg");
}

TEST_F(ScrollViewTest, AControlKeepsAFingerThatRestedOnIt) {
    const auto control = ui::Control::make<"initWithFrame:">(CGRect{{0, 0}, {200, 3000}});
    scroll_.addSubview(control);
    drag(450, 350, 0.1);
    EXPECT_GT(top(), 50) << "a quick drag is the scroll view's";
    up();
    advance(5);
    const double rest = top();
    for (const bool cancels : {true, false}) {
        if (!cancels) {
            control.removeFromSuperview();
            scroll_.addSubview(ui::View::withFrame({{0, 0}, {200, 3000}}));
            scroll_.send<"setCanCancelContentTouches:">(objc::Boolean(false));
        }
        down({150, 450});
        advance(0.3);
        move({150, 350});
        EXPECT_EQ(top(), rest) << cancels;
        up();
    }
}

TEST_F(ScrollViewTest, PagesComeToRestOneByOne) {
    scroll_.send<"setPagingEnabled:">(true);
    drag(450, 400, 0.05);
    up();
    advance(3);
    EXPECT_EQ(top(), 400);
    drag(150, 200, 1);
    advance(0.3);
    up();
    advance(3);
    EXPECT_EQ(top(), 400);
}

TEST_F(ScrollViewTest, InsetsWidenTheRangeAndKeepTheTop) {
    scroll_.send<"setContentInset:">(UIEdgeInsets{50, 0, 20, 0});
    EXPECT_EQ(top(), -50);
    scroll_.setContentOffset({0, 2620});
    scroll_.setContentSize({200, 1000});
    EXPECT_EQ(top(), 620);
    scroll_.setFrame({{0, 0}, {200, 844}});
    scroll_.setContentOffset({0, -50});
    scroll_.layoutIfNeeded();
    EXPECT_EQ((scroll_.send<"adjustedContentInset", UIEdgeInsets>()), (UIEdgeInsets{97, 0, 54, 0}))
        << "under the status bar and over the home indicator";
    EXPECT_EQ(top(), -97);
}

TEST_F(ScrollViewTest, AnimatedOffsetsTakeTheirTime) {
    scroll_.send<"setContentOffset:animated:">(CGPoint{0, 300}, true);
    advance(0.15);
    EXPECT_GT(top(), 50);
    EXPECT_LT(top(), 250);
    EXPECT_EQ(heard(), "s");
    advance(0.3);
    EXPECT_EQ(top(), 300);
    EXPECT_EQ(heard(), "sa");
    scroll_.send<"scrollRectToVisible:animated:">(CGRect{{0, 100}, {10, 10}}, false);
    EXPECT_EQ(top(), 100);
    scroll_.send<"scrollRectToVisible:animated:">(CGRect{{0, 120}, {10, 10}}, false);
    EXPECT_EQ(top(), 100);
    scroll_.setContentOffset({std::nan(""), INFINITY});
    EXPECT_EQ(top(), 100);
}

TEST_F(ScrollViewTest, TheIndicatorComesAndGoes) {
    drag(450, 250, 0.5);
    ASSERT_EQ(scroll_.subviews().count(), 1U);
    const CGRect mark = scroll_.subviews().first().frame();
    EXPECT_NEAR(mark.origin.x, 194, 1e-9);
    EXPECT_GT(mark.origin.y, top() + 20);
    up();
    advance(10);
    EXPECT_EQ(scroll_.subviews().count(), 0U);
}

TEST_F(ScrollViewTest, TheWheelScrollsWhatIsUnderItAndCanMove) {
    const auto inner = ui::ScrollView::withFrame({{0, 0}, {200, 200}});
    inner.setContentSize({200, 230});
    scroll_.addSubview(inner);
    EXPECT_TRUE(desktop::turnWheel({150, 150}, {0, 100}));
    EXPECT_EQ(inner.contentOffset().y, 30);
    EXPECT_EQ(top(), 0);
    EXPECT_TRUE(desktop::turnWheel({150, 150}, {0, 100}));
    EXPECT_EQ(top(), 100);
    EXPECT_FALSE(desktop::turnWheel({50, 50}, {0, 100}));
    EXPECT_EQ(heard(), "s");
}

TEST_F(ScrollViewTest, ADelegateMayTakeTheViewAwayMidway) {
    for (const char moment : std::string("DsdGg")) {
        objc::Weak<ui::ScrollView> known;
        ScrollLog::of(delegate_).then = [&](char letter) {
            if (letter == moment) {
                known.strong().removeFromSuperview(); // nobody else keeps it
            }
        };
        {
            const objc::Pool inner;
            const auto scroll = ui::ScrollView::withFrame({{100, 100}, {200, 400}});
            scroll.setContentSize({200, 3'000});
            scroll.send<"setDelegate:">(delegate_.raw());
            window_.addSubview(scroll);
            known = scroll;
        }
        {
            const objc::Pool inner;
            drag(450, 250, 0.2);
            up();
            advance(5);
        }
        EXPECT_NE(heard().find(moment), std::string::npos) << moment;
        EXPECT_FALSE(known) << moment;
    }
    ScrollLog::of(delegate_).then = nullptr;
}

} // namespace
