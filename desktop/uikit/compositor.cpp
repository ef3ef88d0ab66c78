// Compositing: transforms, opacity, clipping and borders of each view's layer.
#include "desktop/uikit/compositor.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/image.hpp"
#include "desktop/uikit/view.hpp"

namespace desktop {
namespace {

void drawContent(ui::View view, const LayerValues& shown, Canvas& canvas) {
    const View& peer = View::of(view);
    const Layer& layer = peer.layer();
    const Rectangle box = rectangle(shown.bounds);
    canvas.save();
    if (layer.masksToBounds_) {
        canvas.clip(box, shown.cornerRadius);
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
    const LayerValues shown = layer.presented();
    if (layer.hidden_ || shown.opacity <= 0) {
        return;
    }
    const CGAffineTransform t = shown.toSuperlayer();
    canvas.save();
    if (canvas.concatenate({t.a, t.b, t.c, t.d, t.tx, t.ty})) {
        const bool translucent = shown.opacity < 1;
        if (translucent) {
            canvas.beginGroup();
        }
        const Rectangle box = rectangle(shown.bounds);
        canvas.fill(box, shown.backgroundColor, shown.cornerRadius);
        drawContent(view, shown, canvas);
        if (layer.borderWidth_ > 0) {
            const ui::Color border = layer.borderUIColor();
            canvas.stroke(box, Color::valueOf(border ? border : ui::Color::black()),
                          layer.borderWidth_, shown.cornerRadius);
        }
        if (translucent) {
            canvas.endGroup(static_cast<double>(shown.opacity));
        }
    }
    canvas.restore();
}

} // namespace desktop
