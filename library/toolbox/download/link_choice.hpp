// The links of a page, one of which is downloaded.
#pragma once

#include "bindings/foundation/url.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// Loads the page and lists the links in it, without those that the user's filter leaves out; the
/// chosen one is copied and downloaded. Main thread.
void offerLinks(FloatingViewController controller, ns::Url page);

} // namespace wentra::toolbox
