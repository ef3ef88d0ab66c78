// UICollectionViewLayoutAttributes: where and how an item is shown.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/index_path.hpp"

namespace ui {

struct CollectionViewLayoutAttributes
    : objc::Kind<CollectionViewLayoutAttributes, "UICollectionViewLayoutAttributes"> {
    using Kind::Kind;

    static CollectionViewLayoutAttributes forCell(ns::IndexPath path) {
        return sendClass<"layoutAttributesForCellWithIndexPath:", CollectionViewLayoutAttributes>(
            path);
    }
    [[nodiscard]] ns::IndexPath indexPath() const { return send<"indexPath", ns::IndexPath>(); }
    [[nodiscard]] CGRect frame() const { return send<"frame", CGRect>(); }
    void setFrame(CGRect frame) const { send<"setFrame:">(frame); }
    [[nodiscard]] double alpha() const { return send<"alpha", double>(); }
    [[nodiscard]] bool isHidden() const { return send<"isHidden", bool>(); }
};

} // namespace ui
