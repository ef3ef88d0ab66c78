// UIAction: an element that does something.
#pragma once

#include "bindings/uikit/action.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/contextmenus/menu_element.hpp"

#include <array>

namespace desktop {

class Action : public PlatformClass<Action, ui::Action> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"actionWithTitle:image:identifier:handler:", &Action::with>(),
            objc::method<"identifier", &Action::identifier>(),
        };
    }
    /// Calls the handler.
    void perform();

private:
    static ui::Action with(Class cls, ns::String title, ui::Image image, ns::String identifier,
                           ui::Action::Handler handler);
    [[nodiscard]] ns::String identifier() const { return identifier_; }

    objc::Copied<ns::String> identifier_;
    objc::Copied<ui::Action::Handler> handler_;
};

} // namespace desktop
