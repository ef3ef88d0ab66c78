// UIImageView.
#pragma once

#include "bindings/uikit/image.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct ImageView : objc::Kind<ImageView, "UIImageView", View> {
    using Kind::Kind;

    static ImageView withImage(Image image) { return make<"initWithImage:">(image); }
    [[nodiscard]] Image image() const { return send<"image", Image>(); }
    void setImage(Image image) const { send<"setImage:">(image); }
};

} // namespace ui
