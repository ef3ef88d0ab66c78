// From blocks, options and seconds to animations.
#include "desktop/uikit/views/view_animation.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/view.hpp"
#include "desktop/quartzcore/animation/animation.hpp"
#include "desktop/runtime/clock.hpp"

namespace desktop {
namespace {

using Changes = ui::View::Changes;
using Completion = ui::View::Completion;

AnimationTiming timingOf(double delay, double duration, ui::ViewAnimationOptions options) {
    using Option = ui::ViewAnimationOptions;
    const auto has = [options](Option bit) { return objc::haveAny(options, bit); };
    AnimationTiming timing;
    timing.delay = delay;
    timing.duration = duration;
    timing.autoreverses = has(Option::autoreverse);
    timing.repeats = has(Option::repeat);
    timing.allowsTouches = has(Option::allowUserInteraction);
    timing.keepsDuration = has(Option::overrideInheritedDuration);
    timing.keepsCurve = has(Option::overrideInheritedCurve);
    constexpr Option curves = Option::curveLinear;
    switch (options & curves) {
    case Option::curveEaseIn:
        timing.curve = TimingCurve::easeIn();
        break;
    case Option::curveEaseOut:
        timing.curve = TimingCurve::easeOut();
        break;
    case Option::curveLinear:
        timing.curve = TimingCurve::linear();
        break;
    default:
        break;
    }
    return timing;
}

Animation::Completion kept(Completion completion) {
    if (!completion) {
        return nullptr;
    }
    // The block may still be on its maker's stack.
    return [block = objc::Strong<Completion>(objc::Copied<Completion>(completion))](bool finished) {
        block(finished);
    };
}

void perform(const AnimationTiming& timing, Changes changes, Completion completion) {
    Animation::perform(
        timing,
        [changes] {
            if (changes) {
                changes();
            }
        },
        kept(completion));
}

void animate(Class, double duration, Changes changes) {
    perform(timingOf(0, duration, {}), changes, {});
}

void animateAndComplete(Class, double duration, Changes changes, Completion completion) {
    perform(timingOf(0, duration, {}), changes, completion);
}

void animateWithOptions(Class, double duration, double delay, ui::ViewAnimationOptions options,
                        Changes changes, Completion completion) {
    perform(timingOf(delay, duration, options), changes, completion);
}

void animateSpring(Class, double duration, double delay, double damping, double velocity,
                   ui::ViewAnimationOptions options, Changes changes, Completion completion) {
    AnimationTiming timing = timingOf(delay, duration, options);
    timing.curve = TimingCurve::spring(damping, velocity * duration);
    timing.keepsCurve = true;
    perform(timing, changes, completion);
}

void performWithout(Class, Changes changes) {
    Animation::performWithout([changes] {
        if (changes) {
            changes();
        }
    });
}

/// A transition takes its time even when nothing moves.
void completeAfter(double seconds, Completion completion) {
    if (const auto block = kept(completion); block) {
        const double wait = seconds > 0 ? seconds : 0;
        Clock::shared().at(Clock::shared().now() + wait, [block] {
            const objc::Pool pool;
            block(true);
        });
    }
}

void transition(Class, ui::View, double duration, ui::ViewAnimationOptions options, Changes changes,
                Completion completion) {
    perform(timingOf(0, duration, options), changes, {});
    completeAfter(duration, completion);
}

void setEnabled(Class, bool enabled) { Animation::setEnabled(enabled); }

bool areEnabled(Class) { return Animation::areEnabled(); }

} // namespace

std::vector<objc::MethodRow> viewAnimationMethods() {
    return {
        objc::classMethod<"animateWithDuration:animations:", &animate>(),
        objc::classMethod<"animateWithDuration:animations:completion:", &animateAndComplete>(),
        objc::classMethod<"animateWithDuration:delay:options:animations:completion:",
                          &animateWithOptions>(),
        objc::classMethod<"animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:"
                          "options:animations:completion:",
                          &animateSpring>(),
        objc::classMethod<"performWithoutAnimation:", &performWithout>(),
        objc::classMethod<"transitionWithView:duration:options:animations:completion:",
                          &transition>(),
        objc::classMethod<"setAnimationsEnabled:", &setEnabled>(),
        objc::classMethod<"areAnimationsEnabled", &areEnabled>(),
    };
}

} // namespace desktop
