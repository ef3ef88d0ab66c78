// UICollectionViewLayout.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

struct CollectionViewLayout : objc::Kind<CollectionViewLayout, "UICollectionViewLayout"> {
    using Kind::Kind;
};

} // namespace ui
