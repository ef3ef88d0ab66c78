// From the platform's threads back to the main one.
#pragma once

#include "bindings/dispatch/dispatch.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <utility>

namespace wentra::toolbox {

/// Runs `body` with the controller in a later turn of the main thread, where the controller also
/// ends if nobody else keeps it. Any thread.
template <class Body>
void onMainThread(objc::Strong<FloatingViewController> controller, Body body) {
    dispatch::async(dispatch::mainQueue(),
                    [controller = std::move(controller), body = std::move(body)] {
                        body(FloatingViewController(controller));
                    });
}

} // namespace wentra::toolbox
