// The button that clears a text field: a cross in a grey disc.
#pragma once

#include "bindings/uikit/control.hpp"

#include "desktop/class.hpp"

namespace desktop {

struct ClearButtonKind : objc::Kind<ClearButtonKind, "UITextFieldClearButton", ui::Control> {
    using Kind::Kind;
};

class ClearButton : public PlatformClass<ClearButton, ClearButtonKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"drawRect:", &ClearButton::drawRect>(),
        };
    }

private:
    void drawRect(CGRect dirty);
};

} // namespace desktop
