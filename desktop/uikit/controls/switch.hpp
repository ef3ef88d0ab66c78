// UISwitch: a capsule with a thumb at the end that tells its state.
#pragma once

#include "bindings/uikit/switch.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Switch : public PlatformClass<Switch, ui::Switch> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &Switch::initWithFrame>(),
            objc::method<"isOn", &Switch::on_>(),
            objc::method<"setOn:", &Switch::setOn>(),
            objc::method<"setOn:animated:", &Switch::setOnAnimated>(),
            objc::method<"turn", &Switch::turn>(),
            objc::method<"drawRect:", &Switch::drawRect>(),
            objc::method<"sizeThatFits:", &Switch::sizeThatFits>(),
        };
    }

private:
    ui::Switch initWithFrame(CGRect frame);
    void setOn(bool on);
    /// It is there at once.
    void setOnAnimated(bool on, bool) { setOn(on); }
    void turn();
    void drawRect(CGRect dirty);
    [[nodiscard]] CGSize sizeThatFits(CGSize) const;

    bool on_ = false;
};

} // namespace desktop
