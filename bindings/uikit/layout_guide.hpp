// UILayoutGuide: a rectangle of a view that constraints may refer to.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

struct LayoutGuide : objc::Kind<LayoutGuide, "UILayoutGuide"> {
    using Kind::Kind;
};

} // namespace ui
