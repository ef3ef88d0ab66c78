// Looks under the finger where no view is named.
#include "desktop/host/view_argument.hpp"

#include "desktop/host/arguments.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/uikit.hpp"

namespace desktop::host {

ui::View viewArgument(Session& session, const Json& request) {
    uikit::layoutWindows();
    const Json* const on = argument(request, "on");
    return on != nullptr ? session.values.toKind<ui::View>(*on)
                         : TouchDispatcher::viewAt(pointArgument(request, "at"));
}

} // namespace desktop::host
