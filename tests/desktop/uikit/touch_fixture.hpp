// Views and targets that write down what reaches them, and fingers to touch them with.
#pragma once

#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace tests {

struct TouchLogKind : objc::Kind<TouchLogKind, "WTTestTouchLog"> {
    using Kind::Kind;
};

/// A target of actions.
class TouchLog : public objc::Peer<TouchLog, TouchLogKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"handle:", &TouchLog::handle>()};
    }
    static SEL action() { return objc::selector<"handle:">(); }

    std::vector<ui::GestureState> states;
    std::function<void(ui::GestureRecognizer)> then;

private:
    void handle(ui::GestureRecognizer recognizer) {
        states.push_back(recognizer.state());
        if (then) {
            then(recognizer);
        }
    }
};

struct TouchedViewKind : objc::Kind<TouchedViewKind, "WTTestTouchedView", ui::View> {
    using Kind::Kind;
};

/// A view that notes touches: "b" began, "m" moved, "e" ended, "c" cancelled, for each touch.
class TouchedView : public objc::Peer<TouchedView, TouchedViewKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"touchesBegan:withEvent:", &TouchedView::note<'b'>>(),
            objc::method<"touchesMoved:withEvent:", &TouchedView::note<'m'>>(),
            objc::method<"touchesEnded:withEvent:", &TouchedView::note<'e'>>(),
            objc::method<"touchesCancelled:withEvent:", &TouchedView::note<'c'>>(),
        };
    }

    std::string seen;
    std::function<void(ui::Touch)> then;

private:
    template <char Letter>
    void note(ns::SetOf<ui::Touch> touches, ui::Event) {
        for (const ui::Touch touch : touches.allObjects()) {
            seen += Letter;
            if (then) {
                then(touch);
            }
        }
    }
};

/// A window with nothing else on the screen, and a virtual clock.
class TouchTest : public UIKitTest {
protected:
    static void SetUpTestSuite() {
        UIKitTest::SetUpTestSuite();
        TouchLog::registerClass();
        TouchedView::registerClass();
        desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_);
    }
    static void TearDownTestSuite() {
        desktop::Clock::shared().setMode(desktop::Clock::Mode::real);
    }

    TouchTest() { window_.makeKeyAndVisible(); }
    ~TouchTest() override {
        window_.setHidden(true);
        desktop::run_loop::advance(5); // so that no tap counts as the second of the next test
    }

    static TouchedViewKind touchedView(ui::View parent, CGRect frame) {
        const auto view = TouchedViewKind::make<"initWithFrame:">(frame);
        parent.addSubview(view);
        return view;
    }
    static const std::string& seen(TouchedViewKind view) { return TouchedView::of(view).seen; }

    template <class Recognizer>
    Recognizer recognizer(ui::View view) {
        const auto made = ui::GestureRecognizer::with<Recognizer>(log_, TouchLog::action());
        view.addGestureRecognizer(made);
        return made;
    }
    TouchLog& log() { return TouchLog::of(log_); }
    std::vector<ui::GestureState> takeStates() { return std::exchange(log().states, {}); }

    static void down(CGPoint point, std::int64_t id = 0) {
        desktop::TouchDispatcher::shared().begin(std::array{desktop::TouchPoint{id, point}});
    }
    static void move(CGPoint point, std::int64_t id = 0) {
        desktop::TouchDispatcher::shared().move(std::array{desktop::TouchPoint{id, point}});
    }
    static void up(std::int64_t id = 0) {
        desktop::TouchDispatcher::shared().end(std::array{desktop::TouchPoint{id, {}}});
    }
    static void tap(CGPoint point) {
        down(point);
        up();
    }

    objc::Strong<ui::Window> window_ = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
    objc::Strong<TouchLogKind> log_ = TouchLogKind::make();
};

} // namespace tests
