// One animation: the changes of layers that were made in one block, and their common time.
#pragma once

#include "desktop/quartzcore/animation/timing_curve.hpp"

#include <functional>
#include <memory>
#include <vector>

namespace desktop {

class Layer;

/// When and how an animation runs. Seconds.
struct AnimationTiming {
    double delay = 0;
    double duration = 0;
    TimingCurve curve = TimingCurve::easeInOut();
    bool autoreverses = false;
    bool repeats = false; ///< until it is removed
    bool allowsTouches = false;
    // Whether it keeps its own values inside of another animation's block.
    bool keepsDuration = false;
    bool keepsCurve = false;
};

/// Main thread.
class Animation : public std::enable_shared_from_this<Animation> {
public:
    using Block = std::function<void()>;
    /// `finished` is false when the animation was broken off.
    using Completion = std::function<void(bool finished)>;

    /// Runs `changes`; what they change of layers moves there in the course of the timing. Then
    /// `completion`, which may be empty, is called: at the end, or in the next turn of the run loop
    /// when nothing moves. A delay or duration that is NaN or negative counts as 0.
    static void perform(AnimationTiming timing, const Block& changes, Completion completion);
    /// Runs `changes` so that nothing in them moves gradually.
    static void performWithout(const Block& changes);
    static void setEnabled(bool enabled);
    [[nodiscard]] static bool areEnabled();
    /// What changes belong to that are made now; null when they are made at once.
    [[nodiscard]] static std::shared_ptr<Animation> current();

    Animation(AnimationTiming timing, Completion completion);

    [[nodiscard]] double progress(double now) const;
    [[nodiscard]] bool isOver(double now) const;
    [[nodiscard]] bool allowsTouches() const { return timing_.allowsTouches; }

    /// The layer takes part from now on; it leaves before it dies.
    void join(Layer& layer);
    /// The layer is not to move any more. When it was the last one, the animation is broken off.
    void leave(Layer& layer);
    /// Another animation has taken the layer over; this one goes on to its end.
    void handOver(Layer& layer);

private:
    [[nodiscard]] double length() const;
    [[nodiscard]] AnimationTiming inside(AnimationTiming inner) const;
    void start();
    void complete(bool finished);

    AnimationTiming timing_;
    Completion completion_;
    double begin_;
    std::vector<Layer*> layers_;
};

} // namespace desktop
