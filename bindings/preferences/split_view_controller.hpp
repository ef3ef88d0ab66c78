// PSSplitViewController: the controller of the whole of Settings.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace ps {

struct SplitViewController
    : objc::Kind<SplitViewController, "PSSplitViewController", ui::ViewController> {
    using Kind::Kind;
};

} // namespace ps
