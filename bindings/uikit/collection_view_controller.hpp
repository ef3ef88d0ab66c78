// UICollectionViewController.
#pragma once

#include "bindings/uikit/collection_view_layout.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct CollectionViewController
    : objc::Kind<CollectionViewController, "UICollectionViewController", ViewController> {
    using Kind::Kind;

    static CollectionViewController withLayout(CollectionViewLayout layout) {
        return make<"initWithCollectionViewLayout:">(layout);
    }
};

} // namespace ui
