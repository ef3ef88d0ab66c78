// The viewers that the browser pushes, by the names of their classes.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::files {

// A viewer that is not there is nil, which is not shown.

[[nodiscard]] ui::ViewController textViewer(ns::String text, ns::Url url);
[[nodiscard]] ui::ViewController imageViewer(ns::Array urls, long index);
/// Of the file's bytes.
[[nodiscard]] ui::ViewController hexViewer(ns::String path);

} // namespace wentra::files
