// Running what controllers have added.
#include "desktop/uikit/application/transition_coordinator.hpp"

#include "desktop/quartzcore/animation/animation.hpp"

namespace desktop {

bool TransitionCoordinator::add(Step animation, Step completion) {
    if (animation) {
        animations_.emplace_back(animation);
    }
    if (completion) {
        completions_.emplace_back(completion);
    }
    return true;
}

void TransitionCoordinator::run(ui::View container) {
    container_ = container;
    AnimationTiming timing;
    timing.duration = duration;
    timing.allowsTouches = true;
    const objc::Strong<TransitionCoordinatorKind> kept = self();
    Animation::perform(
        timing,
        [this] {
            for (const auto& animation : animations_) {
                animation(self());
            }
        },
        [kept](bool) {
            TransitionCoordinator& peer = of(kept);
            peer.isOver_ = true;
            for (const auto& completion : peer.completions_) {
                completion(kept);
            }
        });
}

} // namespace desktop
