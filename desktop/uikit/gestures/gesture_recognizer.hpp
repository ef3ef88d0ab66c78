// UIGestureRecognizer: the states of a gesture, and which of several gestures it becomes.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"

#include "desktop/class.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/gestures/gesture_rule.hpp"

#include <vector>

namespace desktop {

/// A rule proposes; here it is decided, against the other recognizers of the same touches, whether
/// the gesture is made. The subclass brings the rule.
class GestureRecognizer : public PlatformClass<GestureRecognizer, ui::GestureRecognizer> {
public:
    static std::vector<objc::MethodRow> methods();

    ~GestureRecognizer();

    /// The rule, which lives as long as the recognizer.
    void follow(GestureRule& rule) { rule_ = &rule; }
    /// The view that it is attached to, nil for none; leaving a view ends what is under way.
    void setView(ui::View view);
    /// What is sent first when the gesture is made; null when nothing is.
    [[nodiscard]] SEL action() const { return targets_.empty() ? nullptr : targets_[0].action; }

    /// A touch has begun in the view or in one inside it: whether it is followed from now on.
    [[nodiscard]] bool receives(ui::Touch touch);
    /// Whether its view has it from the start, as text and scroll views have theirs: it gives way
    /// to those that were added.
    bool belongsToView = false;
    [[nodiscard]] bool follows(ui::Touch touch) const;
    /// Lets touches go that have left; after the last one of a decided gesture the next may come.
    void forgetLifted();

    /// A vector of the window as one of `view`, and back.
    [[nodiscard]] CGPoint vectorIn(ui::View view, CGPoint vector) const;
    [[nodiscard]] CGPoint vectorFrom(ui::View view, CGPoint vector) const;

private:
    struct Target {
        objc::Weak<objc::Object> target;
        SEL action;
    };

    ui::GestureRecognizer initWithTarget(objc::Object target, SEL action);
    ui::GestureRecognizer init() { return initWithTarget(nullptr, nullptr); }
    void addTarget(objc::Object target, SEL action);
    void removeTarget(objc::Object target, SEL action);
    [[nodiscard]] ui::View view() const { return view_; }
    [[nodiscard]] ui::GestureState state() const { return state_; }
    void setState(ui::GestureState state);
    void enabledChanged();
    void requireToFail(ui::GestureRecognizer other);
    [[nodiscard]] unsigned long numberOfTouches() const { return points_.size(); }
    [[nodiscard]] CGPoint locationIn(ui::View view) const;
    [[nodiscard]] CGPoint locationOfTouch(unsigned long index, ui::View view) const;
    [[nodiscard]] bool canPrevent(ui::GestureRecognizer) const { return true; }
    [[nodiscard]] bool canBePreventedBy(ui::GestureRecognizer) const { return true; }

    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    [[nodiscard]] bool decides() const;
    [[nodiscard]] std::vector<Finger> fingers() const;
    void notePoints(const std::vector<Finger>& fingers);
    void followToTheEnd();
    void timeUp();
    void arm();
    void disarm();

    // Arbitration, in gesture_arbitration.cpp.
    void take(GestureStep step);
    void decide();
    void recognize();
    void fail();
    void enter(ui::GestureState state);
    void sendActions();
    void abandon();
    void startAnew();
    void reset() {}
    void answerWaiting();
    [[nodiscard]] bool isOver() const { return state_ >= ui::GestureState::ended; }
    [[nodiscard]] bool isUnderWay() const {
        return state_ == ui::GestureState::began || state_ == ui::GestureState::changed;
    }
    [[nodiscard]] bool isUndecided() const;
    [[nodiscard]] bool mayBegin() const;
    [[nodiscard]] std::vector<objc::Strong<ui::GestureRecognizer>> competitors() const;
    [[nodiscard]] bool allows(ui::GestureRecognizer other) const;
    [[nodiscard]] bool excludes(ui::GestureRecognizer other) const;
    [[nodiscard]] bool waitsFor(ui::GestureRecognizer other) const;
    [[nodiscard]] std::vector<objc::Strong<ui::GestureRecognizer>> predecessors() const;

    GestureRule* rule_ = nullptr;
    ui::GestureState state_ = ui::GestureState::possible;
    GestureStep proposal_ = GestureStep::none;
    Clock::Ticket deadline_ = 0;
    bool enabled_ = true;
    bool cancelsTouchesInView_ = true;
    ui::View view_;
    objc::Weak<objc::Object> delegate_;
    std::vector<Target> targets_;
    std::vector<objc::Strong<ui::GestureRecognizer>> mustFailFirst_;
    std::vector<objc::Strong<ui::Touch>> touches_;
    objc::Strong<ui::Window> window_;
    std::vector<CGPoint> points_; // in the window
};

} // namespace desktop
