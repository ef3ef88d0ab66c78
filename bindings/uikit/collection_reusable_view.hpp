// UICollectionReusableView: what a collection view shows and uses again.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct CollectionReusableView
    : objc::Kind<CollectionReusableView, "UICollectionReusableView", View> {
    using Kind::Kind;
};

} // namespace ui
