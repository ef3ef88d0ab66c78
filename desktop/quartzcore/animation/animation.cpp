// Running animations, one inside of another, and completing them.
#include "desktop/quartzcore/animation/animation.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/quartzcore/animation/frame_clock.hpp"
#include "desktop/quartzcore/layer.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

bool enabled = true;

/// The blocks being run, innermost last; null where animations are off.
std::vector<std::shared_ptr<Animation>>& blocks() {
    static std::vector<std::shared_ptr<Animation>> running;
    return running;
}

class Scope {
public:
    explicit Scope(std::shared_ptr<Animation> animation) {
        blocks().push_back(std::move(animation));
    }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope() { blocks().pop_back(); }
};

double seconds(double value) {
    constexpr double longest = 1e9; // so that sums stay finite
    return value > 0 ? std::min(value, longest) : 0;
}

void inNextTurn(std::function<void()> work) {
    Clock::shared().at(Clock::shared().now(), [work = std::move(work)] {
        const objc::Pool pool;
        work();
    });
}

} // namespace

void Animation::setEnabled(bool isEnabled) { enabled = isEnabled; }

bool Animation::areEnabled() { return enabled && (blocks().empty() || blocks().back()); }

std::shared_ptr<Animation> Animation::current() {
    const bool moves =
        enabled && !blocks().empty() && blocks().back() && blocks().back()->length() > 0;
    return moves ? blocks().back() : nullptr;
}

void Animation::performWithout(const Block& changes) {
    const Scope scope(nullptr);
    changes();
}

void Animation::perform(AnimationTiming timing, const Block& changes, Completion completion) {
    timing.delay = seconds(timing.delay);
    timing.duration = seconds(timing.duration);
    if (!blocks().empty() && blocks().back()) {
        timing = blocks().back()->inside(timing);
    }
    const auto animation = std::make_shared<Animation>(timing, std::move(completion));
    {
        const Scope scope(areEnabled() ? animation : nullptr);
        changes();
    }
    animation->start();
}

/// The timing of a block inside of this one's.
AnimationTiming Animation::inside(AnimationTiming inner) const {
    inner.duration = inner.keepsDuration ? inner.duration : timing_.duration;
    inner.curve = inner.keepsCurve ? inner.curve : timing_.curve;
    return inner;
}

Animation::Animation(AnimationTiming timing, Completion completion)
    : timing_(timing), completion_(std::move(completion)), begin_(Clock::shared().now()) {}

double Animation::length() const {
    return timing_.delay + timing_.duration * (timing_.autoreverses ? 2 : 1);
}

bool Animation::isOver(double now) const { return !timing_.repeats && now >= begin_ + length(); }

double Animation::progress(double now) const {
    const double passed = now - begin_ - timing_.delay;
    if (isOver(now)) {
        return 1;
    }
    if (passed < 0 || timing_.duration <= 0) {
        return 0;
    }
    double fraction = passed / timing_.duration;
    if (timing_.repeats || timing_.autoreverses) {
        const double round = std::floor(fraction);
        const bool back = timing_.autoreverses && std::fmod(round, 2) != 0;
        fraction = back ? 1 - (fraction - round) : fraction - round;
    }
    return timing_.curve.progress(fraction);
}

void Animation::join(Layer& layer) {
    if (std::ranges::find(layers_, &layer) == layers_.end()) {
        layers_.push_back(&layer);
    }
}

void Animation::leave(Layer& layer) {
    if (std::erase(layers_, &layer) > 0 && layers_.empty()) {
        inNextTurn([animation = shared_from_this()] { animation->complete(false); });
    }
}

void Animation::handOver(Layer& layer) { std::erase(layers_, &layer); }

void Animation::start() {
    if (layers_.empty()) {
        inNextTurn([animation = shared_from_this()] { animation->complete(true); });
        return;
    }
    FrameClock::shared().run([animation = shared_from_this()](double now) {
        return !animation->layers_.empty() && !animation->isOver(now);
    });
    if (!timing_.repeats) {
        Clock::shared().at(begin_ + length(), [animation = shared_from_this()] {
            const objc::Pool pool;
            animation->complete(true);
        });
    }
}

void Animation::complete(bool finished) {
    for (Layer* layer : std::exchange(layers_, {})) {
        layer->forget(*this);
    }
    if (const auto completion = std::exchange(completion_, nullptr); completion) {
        completion(finished);
    }
}

} // namespace desktop
