// Commands for the screen: its appearance, and how the phone is held.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/uikit/uikit.hpp"

namespace desktop::host {

Json appearance(Session&, const Json& request) {
    using uikit::Appearance;
    if (argument(request, "set") != nullptr) {
        const std::string& name = stringArgument(request, "set");
        if (name != "light" && name != "dark") {
            throw RequestError("\"set\" must be light or dark");
        }
        uikit::setAppearance(name == "dark" ? Appearance::dark : Appearance::light);
    }
    return uikit::appearance() == Appearance::dark ? "dark" : "light";
}

Json rotate(Session&, const Json& request) {
    if (argument(request, "to") != nullptr && !uikit::turnTo(stringArgument(request, "to"))) {
        throw RequestError("\"to\" must be portrait, landscapeLeft, landscapeRight or "
                           "portraitUpsideDown");
    }
    return std::string(uikit::orientation());
}

} // namespace desktop::host
