// Compositing: transforms, opacity, clipping and borders of each view's layer.
#include "desktop/uikit/compositor.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/image.hpp"
#include "desktop/uikit/view.hpp"

namespace desktop {
namespace {

void drawContent(ui::View view, Canvas& canvas) {
    const View& peer = View::of(view);
    const Layer& layer = peer.layer();
    const Rectangle box = rectangle(layer.bounds());
    canvas.save();
    if (layer.masksToBounds_) {
        canvas.clip(box, layer.cornerRadius_);
    }
    if (const Image* contents = UIImage::valueOf(layer.contents_.as<ui::Image>());
        contents != nullptr) {
        canvas.draw(*contents, box);
    }
    {
        const CurrentCanvas current(canvas);
        view.drawRect(layer.bounds());
    }
    const auto children = peer.children(); // a copy: drawing may change the tree
    for (const auto& child : children) {
        composite(child, canvas);
    }
    canvas.restore();
}

} // namespace

void composite(ui::View view, Canvas& canvas) {
    const Layer& layer = View::of(view).layer();
    if (layer.hidden_ || layer.opacity_ <= 0) {
        return;
    }
    const CGAffineTransform t = layer.toSuperlayer();
    canvas.save();
    if (canvas.concatenate({t.a, t.b, t.c, t.d, t.tx, t.ty})) {
        const bool translucent = layer.opacity_ < 1;
        if (translucent) {
            canvas.beginGroup();
        }
        const Rectangle box = rectangle(layer.bounds());
        canvas.fill(box, Color::valueOf(View::of(view).backgroundColor()), layer.cornerRadius_);
        drawContent(view, canvas);
        if (layer.borderWidth_ > 0) {
            const ui::Color border = layer.borderUIColor();
            canvas.stroke(box, Color::valueOf(border ? border : ui::Color::black()),
                          layer.borderWidth_, layer.cornerRadius_);
        }
        if (translucent) {
            canvas.endGroup(static_cast<double>(layer.opacity_));
        }
    }
    canvas.restore();
}

} // namespace desktop
