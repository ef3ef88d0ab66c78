// UICollectionViewController.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct CollectionViewController
    : objc::Kind<CollectionViewController, "UICollectionViewController", ViewController> {
    using Kind::Kind;
};

} // namespace ui
