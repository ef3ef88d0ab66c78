// What a short video's link leads to, asked of a service.
#pragma once

#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The request's address, in which the video's stands as it is.
[[nodiscard]] std::u16string videoRequestAddress(std::u16string_view address);

/// Asks the service for the parts of the video, and lets the user choose which of them is
/// downloaded. Nothing is shown when the service does not answer. Main thread.
void offerVideo(FloatingViewController controller, ns::String address);

} // namespace wentra::toolbox
