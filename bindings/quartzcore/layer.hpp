// CALayer.
#pragma once

#include "bindings/coregraphics/color.hpp"
#include "bindings/coregraphics/geometry.hpp"
#include "bindings/coregraphics/image.hpp"
#include "bindings/objc/kind.hpp"
#include "bindings/objc/strong.hpp"

namespace ca {

struct Layer : objc::Kind<Layer, "CALayer"> {
    using Kind::Kind;

    [[nodiscard]] double cornerRadius() const { return send<"cornerRadius", double>(); }
    void setCornerRadius(double points) const { send<"setCornerRadius:">(points); }
    [[nodiscard]] double borderWidth() const { return send<"borderWidth", double>(); }
    void setBorderWidth(double points) const { send<"setBorderWidth:">(points); }
    void setBorderColor(CGColorRef color) const { send<"setBorderColor:">(color); }
    void setMasksToBounds(bool masks) const { send<"setMasksToBounds:">(masks); }
    /// An image (or null) drawn over the layer's bounds, which keeps it.
    void setContents(CGImageRef image) const {
        const auto contents = objc::wrap(reinterpret_cast<id>(image));
        send<"setContents:">(contents);
    }
};

} // namespace ca
