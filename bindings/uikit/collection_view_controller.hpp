// UICollectionViewController.
#pragma once

#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_layout.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct CollectionViewController
    : objc::Kind<CollectionViewController, "UICollectionViewController", ViewController> {
    using Kind::Kind;

    /// Its own, whose data source and delegate it is.
    [[nodiscard]] CollectionView collectionView() const {
        return send<"collectionView", CollectionView>();
    }
};

} // namespace ui
