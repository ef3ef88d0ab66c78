// UICollectionViewCell.
#pragma once

#include "bindings/uikit/collection_reusable_view.hpp"

namespace ui {

struct CollectionViewCell
    : objc::Kind<CollectionViewCell, "UICollectionViewCell", CollectionReusableView> {
    using Kind::Kind;

    /// What the cell shows is put into this view.
    [[nodiscard]] View contentView() const { return send<"contentView", View>(); }
};

} // namespace ui
