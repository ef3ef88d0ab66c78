// Commands for the phone as a whole: its appearance, how it is held, its buttons, and its model.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/events/shake.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
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

Json textSize(Session&, const Json& request) {
    if (argument(request, "set") != nullptr) {
        const auto size = contentSizeNamed(stringArgument(request, "set"));
        if (!size) {
            throw RequestError("\"set\" must be a size from extraSmall to "
                               "accessibilityExtraExtraExtraLarge");
        }
        setScreenContentSize(*size);
    }
    return nameOf(screenTraits().contentSize);
}

Json home(Session&, const Json& request) {
    if (argument(request, "set") != nullptr) {
        Foreground::shared().showHomeScreen(flagArgument(request, "set"));
    }
    return Foreground::shared().isHomeScreenShown();
}

Json lock(Session&, const Json& request) {
    if (argument(request, "set") != nullptr) {
        Foreground::shared().lock(flagArgument(request, "set"));
    }
    return Foreground::shared().isLocked();
}

Json shake(Session&, const Json&) {
    shakePhone();
    return nullptr;
}

Json device(Session&, const Json& request) {
    if (argument(request, "set") != nullptr) {
        const Device* chosen = deviceNamed(stringArgument(request, "set"));
        if (chosen == nullptr) {
            throw RequestError("\"set\" must be a device that --list-devices names");
        }
        exchangeDevice(*chosen);
    }
    const Device& present = ScreenGeometry::current().device;
    return {{"name", present.name.empty() ? Json() : Json(present.name)},
            {"size", {present.size.width, present.size.height}},
            {"scale", present.scale},
            {"front", nameOf(present.front)}};
}

} // namespace desktop::host
