// Recognizers: their states, and how those of the same touches come to terms.
#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"

#include <algorithm>
#include <string_view>

namespace desktop {
namespace {

/// Recognizers that have seen their gesture, but wait for another one to fail first.
std::vector<ui::GestureRecognizer>& waiting() {
    static auto* recognizers = new std::vector<ui::GestureRecognizer>;
    return *recognizers;
}

} // namespace

GestureRecognizer::~GestureRecognizer() {
    disarm();
    std::erase(waiting(), self());
}

void GestureRecognizer::setState(ui::GestureState state) {
    switch (state) {
    case ui::GestureState::possible:
        break;
    case ui::GestureState::began:
        take(GestureStep::begin);
        break;
    case ui::GestureState::changed:
        take(GestureStep::change);
        break;
    case ui::GestureState::ended:
        take(GestureStep::end);
        break;
    case ui::GestureState::cancelled:
    case ui::GestureState::failed:
        take(GestureStep::fail);
        break;
    }
}

void GestureRecognizer::take(GestureStep step) {
    const bool proposes = step == GestureStep::begin || step == GestureStep::end;
    if (step == GestureStep::fail) {
        fail();
    } else if (proposes && state_ == ui::GestureState::possible) {
        proposal_ = step;
        decide();
    } else if (isUnderWay() && step == GestureStep::change) {
        enter(ui::GestureState::changed);
    } else if (isUnderWay() && step == GestureStep::end) {
        enter(ui::GestureState::ended);
    }
    arm();
}

void GestureRecognizer::decide() {
    for (const auto& other : predecessors()) {
        const GestureRecognizer& peer = of(other);
        if (peer.isUnderWay() || peer.state_ == ui::GestureState::ended) {
            fail();
            return;
        }
        if (peer.isUndecided()) {
            waiting().push_back(self());
            return;
        }
    }
    const auto others = competitors();
    const bool excluded = std::ranges::any_of(others, [this](const auto& other) {
        const GestureRecognizer& peer = of(other);
        return (peer.isUnderWay() || peer.state_ == ui::GestureState::ended) &&
               peer.excludes(self());
    });
    if (excluded || !mayBegin()) {
        fail();
    } else {
        recognize();
    }
}

void GestureRecognizer::recognize() {
    const auto others = competitors();
    // First of all, so that whoever is asked below finds the gesture made.
    state_ = std::exchange(proposal_, GestureStep::none) == GestureStep::begin
                 ? ui::GestureState::began
                 : ui::GestureState::ended;
    for (const auto& other : others) {
        if (of(other).state_ == ui::GestureState::possible && excludes(other)) {
            of(other).fail();
        }
    }
    answerWaiting();
    if (cancelsTouchesInView_) {
        TouchDispatcher::shared().cancelInViews(touches_);
    }
    sendActions();
}

void GestureRecognizer::fail() {
    proposal_ = GestureStep::none;
    std::erase(waiting(), self());
    disarm();
    if (isUnderWay()) {
        enter(ui::GestureState::cancelled);
    } else if (state_ == ui::GestureState::possible) {
        state_ = ui::GestureState::failed;
        answerWaiting();
    }
}

void GestureRecognizer::enter(ui::GestureState state) {
    state_ = state;
    sendActions();
}

void GestureRecognizer::sendActions() {
    const auto targets = targets_; // a copy: an action may change them
    for (const auto& [known, action] : targets) {
        const auto target = known.strong();
        if (!target) {
            continue;
        }
        if (std::string_view(sel_getName(action)).ends_with(':')) {
            objc::sendTo(target.raw(), action, self());
        } else {
            objc::sendTo(target.raw(), action);
        }
    }
}

/// Ends what is under way; the touches are still followed until they leave.
void GestureRecognizer::abandon() {
    if (isUnderWay() || isUndecided()) {
        fail();
        forgetLifted();
    }
}

void GestureRecognizer::startAnew() {
    disarm();
    state_ = ui::GestureState::possible;
    points_.clear();
    if (rule_ != nullptr) {
        rule_->reset();
    }
    self().send<"reset">();
}

/// What this recognizer came to decides about those that wait for it.
void GestureRecognizer::answerWaiting() {
    std::vector<objc::Strong<ui::GestureRecognizer>> asked;
    for (const ui::GestureRecognizer other : waiting()) {
        if (of(other).waitsFor(self())) {
            asked.emplace_back(other);
        }
    }
    for (const auto& other : asked) {
        if (std::erase(waiting(), other) == 0) {
            continue; // decided meanwhile
        }
        GestureRecognizer& peer = of(other);
        peer.decide();
        if (peer.touches_.empty()) {
            peer.forgetLifted();
        }
    }
}

bool GestureRecognizer::isUndecided() const {
    return state_ == ui::GestureState::possible &&
           (!touches_.empty() || proposal_ != GestureStep::none || deadline_ != 0);
}

/// Whether the delegate, and the view that was touched, have nothing against it.
bool GestureRecognizer::mayBegin() const {
    constexpr auto asked = &objc::selector<"gestureRecognizerShouldBegin:">;
    if (const auto delegate = delegate_.strong();
        delegate.respondsToSelector(asked()) &&
        !objc::sendTo<bool>(delegate.raw(), asked(), self())) {
        return false;
    }
    const ui::View touched = touches_.empty() ? view_ : touches_.front().view();
    return !touched || objc::sendTo<bool>(touched.raw(), asked(), self());
}

/// The other recognizers of these touches.
std::vector<objc::Strong<ui::GestureRecognizer>> GestureRecognizer::competitors() const {
    std::vector<objc::Strong<ui::GestureRecognizer>> others;
    for (const auto& touch : touches_) {
        for (const auto& other : Touch::of(touch).recognizers) {
            if (other != self() && std::ranges::find(others, other) == others.end()) {
                others.push_back(other);
            }
        }
    }
    return others;
}

/// Whether this one is made only when the other one has failed.
bool GestureRecognizer::waitsFor(ui::GestureRecognizer other) const {
    constexpr auto asked =
        &objc::selector<"gestureRecognizer:shouldBeRequiredToFailByGestureRecognizer:">;
    const auto delegate = of(other).delegate_.strong();
    return std::ranges::find(mustFailFirst_, other) != mustFailFirst_.end() ||
           (delegate.respondsToSelector(asked()) &&
            objc::sendTo<bool>(delegate.raw(), asked(), other, self()));
}

std::vector<objc::Strong<ui::GestureRecognizer>> GestureRecognizer::predecessors() const {
    auto all = mustFailFirst_;
    for (const auto& other : competitors()) {
        if (std::ranges::find(all, other) == all.end() && waitsFor(other)) {
            all.push_back(other);
        }
    }
    return all;
}

/// Whether this recognizer's delegate lets it recognize together with the other one.
bool GestureRecognizer::allows(ui::GestureRecognizer other) const {
    constexpr auto asked =
        &objc::selector<"gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:">;
    const auto delegate = delegate_.strong();
    return delegate.respondsToSelector(asked()) &&
           objc::sendTo<bool>(delegate.raw(), asked(), self(), other);
}

/// Whether the other one cannot be made once this one is.
bool GestureRecognizer::excludes(ui::GestureRecognizer other) const {
    return !allows(other) && !of(other).allows(self()) &&
           self().send<"canPreventGestureRecognizer:", bool>(other) &&
           other.send<"canBePreventedByGestureRecognizer:", bool>(self());
}

} // namespace desktop
