// Animations: what is shown follows what is set, on the clock.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/views/view.hpp"

#include <cmath>
#include <limits>

namespace {

using Option = ui::ViewAnimationOptions;

class AnimationTest : public tests::TouchTest {
protected:
    AnimationTest() {
        view = ui::View::withFrame({{0, 0}, {100, 100}});
        window_.addSubview(view);
    }
    ~AnimationTest() override {
        view.removeFromSuperview();
        advance(5); // what is under way writes into this test
    }
    void animate(double seconds, std::function<void()> changes, Option options = {},
                 double delay = 0) {
        ui::View::animate(seconds, delay, options | Option::curveLinear,
                          ui::View::Changes::from(std::move(changes)),
                          ui::View::Completion::from(
                              [this](bool finished) { completions += finished ? 'y' : 'n'; }));
    }
    [[nodiscard]] desktop::LayerValues shown() const {
        return desktop::View::of(view).layer().presented();
    }
    static void advance(double seconds) { desktop::run_loop::advance(seconds); }

    objc::Strong<ui::View> view;
    std::string completions;
};

TEST_F(AnimationTest, ValuesChangeAtOnceAndAreShownOnTheWay) {
    animate(1, [this] {
        view.setFrame({{100, 200}, {300, 100}});
        view.setAlpha(0);
        view.setBackgroundColor(ui::Color::white());
    });
    EXPECT_EQ(view.frame(), (CGRect{{100, 200}, {300, 100}}));
    EXPECT_EQ(shown().frame(), (CGRect{{0, 0}, {100, 100}}));
    advance(0.5);
    EXPECT_EQ(shown().frame(), (CGRect{{50, 100}, {200, 100}}));
    EXPECT_NEAR(shown().opacity, 0.5F, 1e-6F);
    EXPECT_NEAR(shown().backgroundColor.alpha, 0.5, 1e-9);
    EXPECT_EQ(completions, "");
    advance(0.5);
    EXPECT_EQ(shown().frame(), view.frame());
    EXPECT_EQ(completions, "y");
}

TEST_F(AnimationTest, ANewAnimationStartsFromWhereTheViewIsShown) {
    animate(1, [this] { view.setCenter({150, 50}); });
    advance(0.5);
    EXPECT_NEAR(shown().position.x, 100, 1e-9);
    animate(1, [this] { view.setCenter({50, 50}); });
    EXPECT_NEAR(shown().position.x, 100, 1e-9);
    advance(0.5);
    EXPECT_NEAR(shown().position.x, 75, 1e-9);
    EXPECT_EQ(completions, "y") << "the first one ends in its own time";
    advance(0.5);
    EXPECT_EQ(completions, "yy");
}

TEST_F(AnimationTest, NothingToWaitForCompletesInTheNextTurn) {
    for (const double seconds : {0.0, -1.0, std::nan("")}) {
        completions.clear();
        view.setAlpha(1);
        animate(seconds, [this] { view.setAlpha(0.5); });
        EXPECT_EQ(shown().opacity, 0.5F);
        EXPECT_EQ(completions, "");
        desktop::run_loop::runUntilIdle();
        EXPECT_EQ(completions, "y") << seconds;
    }
    animate(std::numeric_limits<double>::infinity(), [this] { view.setAlpha(0); });
    advance(1);
    EXPECT_NEAR(shown().opacity, 0.5F, 1e-3F);
}

TEST_F(AnimationTest, DelaysRepetitionsAndReturns) {
    animate(
        1,
        [this] {
            view.setCenter({150, 50});
        },
        {}, 2);
    advance(2);
    EXPECT_NEAR(shown().position.x, 50, 1e-9);
    advance(0.25);
    EXPECT_NEAR(shown().position.x, 75, 1e-9);
    advance(1);
    animate(
        1,
        [this] {
            view.setCenter({50, 50});
        },
        Option::repeat | Option::autoreverse);
    advance(100.75);
    EXPECT_NEAR(shown().position.x, 75, 1e-6);
    advance(1);
    EXPECT_NEAR(shown().position.x, 125, 1e-6);
    EXPECT_EQ(completions, "y");
}

TEST_F(AnimationTest, InnerBlocksInheritUnlessTheySayOtherwise) {
    const auto other = ui::View::withFrame({{0, 0}, {100, 100}});
    const auto still = ui::View::withFrame({{0, 0}, {100, 100}});
    window_.addSubview(other);
    animate(2, [&] {
        animate(1, [&] { view.setCenter({150, 50}); });
        animate(
            1,
            [&] {
                other.setCenter({150, 50});
            },
            Option::overrideInheritedDuration);
        ui::View::performWithoutAnimation(ui::View::Changes::from([&] {
            EXPECT_FALSE((ui::View::sendClass<"areAnimationsEnabled", bool>()));
            animate(1, [&] { still.setCenter({150, 50}); });
        }));
    });
    advance(0.5);
    EXPECT_NEAR(shown().position.x, 75, 1e-9);
    EXPECT_NEAR(desktop::View::of(other).layer().presented().position.x, 100, 1e-9);
    EXPECT_NEAR(desktop::View::of(still).layer().presented().position.x, 150, 1e-9);
}

TEST_F(AnimationTest, AViewThatLeavesTheWindowBreaksItsAnimationOff) {
    animate(1, [this] { view.setAlpha(0); });
    advance(0.5);
    view.removeFromSuperview();
    EXPECT_EQ(shown().opacity, 0);
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(completions, "n");
    window_.addSubview(view);
    animate(
        1, [this] { view.setAlpha(1); }, Option::repeat);
    advance(0.5);
    {
        const objc::Pool pool;
        view.removeFromSuperview();
        view = nullptr;
    }
    advance(1);
    EXPECT_EQ(completions, "nn");
}

TEST_F(AnimationTest, TouchesAreForViewsAtRestAndGoByWhatIsSet) {
    animate(
        1,
        [this] {
            view.setFrame({{200, 200}, {100, 100}});
        },
        Option::allowUserInteraction);
    EXPECT_EQ(window_.hitTest({250, 250}, nullptr), view);
    EXPECT_EQ(window_.hitTest({50, 50}, nullptr), window_);
    animate(1, [this] { view.setAlpha(0.5); });
    EXPECT_EQ(window_.hitTest({250, 250}, nullptr), window_);
    advance(1);
    EXPECT_EQ(window_.hitTest({250, 250}, nullptr), view);
}

TEST_F(AnimationTest, SwitchedOffAnimationsStillComplete) {
    ui::View::sendClass<"setAnimationsEnabled:">(false);
    animate(1, [this] { view.setAlpha(0); });
    ui::View::sendClass<"setAnimationsEnabled:">(true);
    EXPECT_EQ(shown().opacity, 0);
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(completions, "y");
}

TEST_F(AnimationTest, FramesComeOnlyWhileSomethingMoves) {
    int frames = 0;
    auto& changes = desktop::ScreenChanges::shared();
    const auto ticket = changes.listen([&] {
        ++frames;
        changes.await();
    });
    changes.await();
    advance(1);
    EXPECT_EQ(frames, 0);
    animate(1, [this] { view.setAlpha(0); });
    frames = 0;
    advance(1.5);
    EXPECT_NEAR(frames, 60, 2);
    changes.leave(ticket);
}

} // namespace
