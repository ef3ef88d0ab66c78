// What controllers get to move along while the phone turns.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/objc/strong.hpp"
#include "bindings/uikit/view.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

struct TransitionCoordinatorKind
    : objc::Kind<TransitionCoordinatorKind, "_UIViewControllerTransitionCoordinator"> {
    using Kind::Kind;
};

/// UIViewControllerTransitionCoordinator, and the context that its blocks are given.
class TransitionCoordinator
    : public PlatformClass<TransitionCoordinator, TransitionCoordinatorKind> {
public:
    using Step = objc::Block<void(objc::Object context)>;
    /// Seconds, as on the phone.
    static constexpr double duration = 0.3;

    static auto methods() {
        return std::array{
            objc::method<"animateAlongsideTransition:completion:", &TransitionCoordinator::add>(),
            objc::method<"animateAlongsideTransitionInView:animation:completion:",
                         &TransitionCoordinator::addInView>(),
            objc::method<"isAnimated", &TransitionCoordinator::yes>(),
            objc::method<"isCancelled", &TransitionCoordinator::no>(),
            objc::method<"isInteractive", &TransitionCoordinator::no>(),
            objc::method<"initiallyInteractive", &TransitionCoordinator::no>(),
            objc::method<"transitionDuration", &TransitionCoordinator::transitionDuration>(),
            objc::method<"percentComplete", &TransitionCoordinator::percentComplete>(),
            objc::method<"targetTransform", &TransitionCoordinator::targetTransform>(),
            objc::method<"containerView", &TransitionCoordinator::containerView>(),
        };
    }

    /// Carries out what was added, with its movements, and calls the completions at their end.
    void run(ui::View container);

private:
    bool add(Step animation, Step completion);
    bool addInView(ui::View, Step animation, Step completion) { return add(animation, completion); }
    [[nodiscard]] bool yes() const { return true; }
    [[nodiscard]] bool no() const { return false; }
    [[nodiscard]] double transitionDuration() const { return duration; }
    [[nodiscard]] double percentComplete() const { return isOver_ ? 1 : 0; }
    [[nodiscard]] CGAffineTransform targetTransform() const { return {}; }
    [[nodiscard]] ui::View containerView() const { return container_; }

    std::vector<objc::Copied<Step>> animations_;
    std::vector<objc::Copied<Step>> completions_;
    objc::Strong<ui::View> container_;
    bool isOver_ = false;
};

} // namespace desktop
