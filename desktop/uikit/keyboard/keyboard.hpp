// The keyboard: it comes when a responder that takes text gets the focus, and tells of its moves.
#pragma once

#include "bindings/uikit/responder.hpp"
#include "bindings/uikit/view.hpp"

#include "desktop/runtime/clock.hpp"

namespace desktop {

/// Main thread.
class Keyboard {
public:
    static Keyboard& shared();

    /// The first responder has changed; nil: there is none.
    void serve(ui::Responder responder);

    /// The screen is of another size.
    void fitScreen();

    /// Whether text is typed on a keyboard of its own: then the keys are not shown, only what the
    /// responder puts in their place or above them.
    void setHardware(bool has);
    [[nodiscard]] bool hasHardware() const { return hasHardware_; }

    /// How much of the screen the keyboard covers, or will once it has come, in points from below.
    [[nodiscard]] double height() const;

    /// Asks whoever has the focus to give it up.
    void dismiss();
    /// A finger that drags content is at that height of the screen: below the keyboard's upper edge
    /// it takes the keyboard along, down and up again.
    void follow(double y);
    /// The finger has left, moving down by so many points a second: a keyboard that it has moved
    /// goes for good, or comes back.
    void letGo(double velocity);

    /// While there is one, the keyboard does not move: the focus passes from one to another.
    class Handover {
    public:
        Handover() { ++shared().handovers_; }
        Handover(const Handover&) = delete;
        Handover& operator=(const Handover&) = delete;
        ~Handover() { --shared().handovers_; }
    };

    /// Seconds that coming and going takes.
    static constexpr double duration = 0.25;

private:
    Keyboard() = default;

    void show(ui::Responder responder);
    void hide();
    void moveTo(CGRect frame, ns::String will, ns::String did);
    void fill(ui::Responder responder);

    /// Holds the keys, or the responder's own input view, below its accessory view.
    objc::Strong<ui::View> container_;
    objc::Strong<ui::View> keys_;
    objc::Strong<ui::View> content_;
    objc::Strong<ui::View> accessory_;
    bool isShown_ = false;
    bool hasHardware_ = false;
    int handovers_ = 0;
    Clock::Ticket arrival_ = 0;
};

} // namespace desktop
