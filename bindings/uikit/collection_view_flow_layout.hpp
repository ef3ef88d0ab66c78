// UICollectionViewFlowLayout: items in lines.
#pragma once

#include "bindings/uikit/collection_view_layout.hpp"

namespace ui {

struct CollectionViewFlowLayout
    : objc::Kind<CollectionViewFlowLayout, "UICollectionViewFlowLayout", CollectionViewLayout> {
    using Kind::Kind;

    /// Of every item of which the delegate does not tell another, in points.
    void setItemSize(CGSize size) const { send<"setItemSize:">(size); }
    /// In points, at least, between the items of a line.
    void setMinimumInteritemSpacing(double points) const {
        send<"setMinimumInteritemSpacing:">(points);
    }
    /// In points, at least, between lines.
    void setMinimumLineSpacing(double points) const { send<"setMinimumLineSpacing:">(points); }
};

} // namespace ui
