// WKNavigation: one load of a page, an identity only.
#pragma once

#include "bindings/objc/kind.hpp"

namespace wk {

struct Navigation : objc::Kind<Navigation, "WKNavigation"> {
    using Kind::Kind;
};

} // namespace wk
