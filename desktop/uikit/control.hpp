// UIControl: a view that people operate. Touches and actions come later.
#pragma once

#include "bindings/uikit/control.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Control : public PlatformClass<Control, ui::Control> {
public:
    static auto methods() {
        return std::array{
            objc::flag<"enabled", &Control::enabled_>(),
            objc::flag<"selected", &Control::selected_>(),
            objc::flag<"highlighted", &Control::highlighted_>(),
        };
    }

private:
    bool enabled_ = true;
    bool selected_ = false;
    bool highlighted_ = false;
};

} // namespace desktop
