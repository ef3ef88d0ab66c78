// UIImageSymbolConfiguration: the size and weight that a symbol is drawn in.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

/// The platform's numbers.
enum class SymbolWeight : long { regular = 4, medium = 5, semibold = 6, bold = 7 };

struct ImageSymbolConfiguration
    : objc::Kind<ImageSymbolConfiguration, "UIImageSymbolConfiguration"> {
    using Kind::Kind;

    static ImageSymbolConfiguration withPointSize(double pointSize, SymbolWeight weight) {
        return sendClass<"configurationWithPointSize:weight:", ImageSymbolConfiguration>(pointSize,
                                                                                         weight);
    }
};

} // namespace ui
