// Recognizers: their states and actions, and how several come to terms.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"
#include "bindings/uikit/swipe_gesture_recognizer.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

namespace {

using State = ui::GestureState;
using States = std::vector<ui::GestureState>;
using Gestures = tests::TouchTest;

struct ConsentKind : objc::Kind<ConsentKind, "WTTestGestureConsent"> {
    using Kind::Kind;
};

/// A recognizer's delegate that answers as it is told.
class Consent : public objc::Peer<Consent, ConsentKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"gestureRecognizer:"
                         "shouldRecognizeSimultaneouslyWithGestureRecognizer:",
                         &Consent::mayShare>(),
            objc::method<"gestureRecognizer:shouldReceiveTouch:", &Consent::mayReceive>(),
            objc::method<"gestureRecognizerShouldBegin:", &Consent::mayBegin>(),
        };
    }
    static objc::Strong<ConsentKind> make() {
        registerClass();
        return ConsentKind::make();
    }

    bool shares = false;
    bool receives = true;
    bool begins = true;

private:
    [[nodiscard]] bool mayShare(ui::GestureRecognizer, ui::GestureRecognizer) const {
        return shares;
    }
    [[nodiscard]] bool mayReceive(ui::GestureRecognizer, ui::Touch) const { return receives; }
    [[nodiscard]] bool mayBegin(ui::GestureRecognizer) const { return begins; }
};

class GestureStates : public Gestures {
protected:
    tests::TouchedViewKind view_ = touchedView(window_, {{0, 0}, {200, 200}});
};

TEST_F(GestureStates, ATapEndsAndTakesTheTouchFromTheView) {
    const auto tapping = recognizer<ui::TapGestureRecognizer>(view_);
    CGPoint where;
    unsigned long fingers = 0;
    log().then = [&](ui::GestureRecognizer sender) {
        where = sender.locationIn(view_);
        fingers = sender.numberOfTouches();
    };
    tap({20, 30});
    EXPECT_EQ(takeStates(), States{State::ended});
    EXPECT_EQ(where, (CGPoint{20, 30}));
    EXPECT_EQ(fingers, 1U);
    EXPECT_EQ(tapping.state(), State::possible);
    EXPECT_EQ(seen(view_), "bc");
    tapping.setCancelsTouchesInView(false);
    tap({20, 30});
    EXPECT_EQ(seen(view_), "bcbe");
}

TEST_F(GestureStates, ALongPressFollowsTheClock) {
    recognizer<ui::LongPressGestureRecognizer>(view_);
    down({10, 10});
    desktop::run_loop::advance(0.49);
    EXPECT_EQ(takeStates(), States());
    desktop::run_loop::advance(0.01);
    EXPECT_EQ(takeStates(), States{State::began});
    EXPECT_EQ(seen(view_), "bc");
    move({100, 10});
    up();
    EXPECT_EQ(takeStates(), (States{State::changed, State::ended}));
    down({10, 10});
    up();
    desktop::run_loop::advance(1);
    EXPECT_EQ(takeStates(), States());
}

TEST_F(GestureStates, APanMeasuresInTheViewsCoordinates) {
    const auto pan = recognizer<ui::PanGestureRecognizer>(view_);
    view_.setTransform({2, 0, 0, 2, 0, 0});
    CGPoint translation;
    log().then = [&](ui::GestureRecognizer) { translation = pan.translationIn(view_); };
    down({50, 50});
    move({50, 80});
    EXPECT_EQ(translation, (CGPoint{0, 15}));
    pan.setTranslation({5, 0}, view_);
    move({52, 80});
    EXPECT_EQ(translation, (CGPoint{6, 0}));
    up();
    EXPECT_EQ(takeStates(), (States{State::began, State::changed, State::ended}));
}

TEST_F(GestureStates, DisablingOrCancellingEndsWhatIsUnderWay) {
    const auto pan = recognizer<ui::PanGestureRecognizer>(view_);
    down({50, 50});
    move({80, 50});
    pan.setEnabled(false);
    move({90, 50});
    up();
    EXPECT_EQ(takeStates(), (States{State::began, State::cancelled}));
    pan.setEnabled(true);
    down({50, 50});
    move({80, 50});
    desktop::TouchDispatcher::shared().cancel(std::array{desktop::TouchPoint{0, {}}});
    EXPECT_EQ(takeStates(), (States{State::began, State::cancelled}));
    EXPECT_EQ(pan.state(), State::possible);
}

TEST_F(GestureStates, TheViewOrTheRecognizerMayGoInTheAction) {
    {
        const objc::Pool inner;
        recognizer<ui::LongPressGestureRecognizer>(view_);
        log().then = [](ui::GestureRecognizer sender) {
            const ui::View view = sender.view();
            view.removeFromSuperview();
            view.removeGestureRecognizer(sender);
        };
        down({10, 10});
        desktop::run_loop::advance(1);
    }
    move({30, 30});
    up();
    EXPECT_EQ(takeStates(), (States{State::began, State::cancelled}));
}

TEST_F(GestureStates, ARecognizerHasOneView) {
    const auto other = touchedView(window_, {{200, 200}, {100, 100}});
    const auto tapping = recognizer<ui::TapGestureRecognizer>(view_);
    other.addGestureRecognizer(tapping);
    EXPECT_EQ(tapping.view(), other);
    EXPECT_EQ(view_.gestureRecognizers().count(), 0U);
    tap({10, 10});
    EXPECT_EQ(takeStates(), States());
    other.removeGestureRecognizer(tapping);
    EXPECT_FALSE(tapping.view());
}

class GestureContest : public GestureStates {
protected:
    /// Which recognizers act, in order.
    std::vector<ui::GestureRecognizer> actors_;
    GestureContest() {
        log().then = [this](ui::GestureRecognizer sender) { actors_.push_back(sender); };
    }
    using Actors = std::vector<ui::GestureRecognizer>;
};

TEST_F(GestureContest, TheInnerViewComesFirst) {
    const auto inner = touchedView(view_, {{0, 0}, {50, 50}});
    const auto outerTap = recognizer<ui::TapGestureRecognizer>(view_);
    const auto innerTap = recognizer<ui::TapGestureRecognizer>(inner);
    tap({10, 10});
    EXPECT_EQ(actors_, Actors{innerTap});
    tap({100, 100});
    EXPECT_EQ(actors_, (Actors{innerTap, outerTap}));
    actors_.clear();
    const auto consent = Consent::make();
    Consent::of(consent).shares = true;
    outerTap.setDelegate(consent);
    desktop::run_loop::advance(1);
    tap({10, 10});
    EXPECT_EQ(actors_, (Actors{innerTap, outerTap}));
}

TEST_F(GestureContest, TheDelegateMayRefuseTouchesAndBeginnings) {
    const auto tapping = recognizer<ui::TapGestureRecognizer>(view_);
    const auto consent = Consent::make();
    tapping.setDelegate(consent);
    Consent::of(consent).receives = false;
    tap({10, 10});
    Consent::of(consent).receives = true;
    Consent::of(consent).begins = false;
    tap({10, 10});
    EXPECT_EQ(actors_, Actors());
    EXPECT_EQ(seen(view_), "bebe");
    Consent::of(consent).begins = true;
    tap({10, 10});
    EXPECT_EQ(actors_, Actors{tapping});
}

TEST_F(GestureContest, ASingleTapWaitsForADoubleTapOnlyWhenTold) {
    const auto single = recognizer<ui::TapGestureRecognizer>(view_);
    const auto twice = recognizer<ui::TapGestureRecognizer>(view_);
    twice.setNumberOfTapsRequired(2);
    tap({10, 10});
    tap({10, 10});
    EXPECT_EQ(actors_, (Actors{single, single, twice}));

    actors_.clear();
    single.requireToFail(twice);
    tap({10, 10});
    tap({10, 10});
    desktop::run_loop::advance(1);
    EXPECT_EQ(actors_, Actors{twice});
    tap({10, 10});
    EXPECT_EQ(actors_, Actors{twice});
    desktop::run_loop::advance(1);
    EXPECT_EQ(actors_, (Actors{twice, single}));
    EXPECT_EQ(single.state(), State::possible);
}

TEST_F(GestureContest, AGestureUnderWayKeepsOthersFromBeginning) {
    const auto press = recognizer<ui::LongPressGestureRecognizer>(view_);
    recognizer<ui::PanGestureRecognizer>(view_);
    const auto tapping = recognizer<ui::TapGestureRecognizer>(view_);
    tapping.requireToFail(press);
    down({10, 10});
    desktop::run_loop::advance(0.6);
    move({150, 10});
    up();
    EXPECT_EQ(actors_, (Actors{press, press, press}));
}

TEST_F(GestureContest, PinchesAndSwipesGetThrough) {
    const auto pinch = recognizer<ui::PinchGestureRecognizer>(view_);
    const auto swipe = recognizer<ui::SwipeGestureRecognizer>(view_);
    down({100, 100});
    move({130, 100});
    move({180, 100});
    up();
    EXPECT_EQ(actors_, Actors{swipe});
    down({90, 100}, 1);
    down({110, 100}, 2);
    move({130, 100}, 2);
    EXPECT_EQ(pinch.scale(), 2);
    up(1);
    up(2);
    EXPECT_EQ(actors_, (Actors{swipe, pinch, pinch}));
}

} // namespace
