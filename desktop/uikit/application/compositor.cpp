// Walking the views: transforms, opacity, clipping and borders of each view's layer.
#include "desktop/uikit/application/compositor.hpp"

#include "bindings/foundation/bundle.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/home_screen.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/application/status_bar.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/image.hpp"
#include "desktop/uikit/views/view.hpp"

namespace desktop {
namespace {

// Stamps that no layer has.
constexpr std::uint64_t screenStamp = 1;
constexpr std::uint64_t statusBarStamp = 2;
constexpr std::uint64_t homeIndicatorStamp = 3;
constexpr std::uint64_t lightStatusBarStamp = 4;
constexpr std::uint64_t homeScreenStamp = 5;

AffineTransform affine(const CGAffineTransform& t) { return {t.a, t.b, t.c, t.d, t.tx, t.ty}; }

/// Whether its class has a way to draw that is not UIView's, which draws nothing.
bool drawsItself(ui::View view) {
    const SEL draw = objc::selector<"drawRect:">();
    return objc::lookUp(view.raw(), draw) !=
           class_getMethodImplementation(View::registeredClass(), draw);
}

/// The last part of the bundle's identifier, with a capital.
std::u16string applicationName() {
    std::u16string name = ns::Bundle::mainBundle().bundleIdentifier().utf16();
    name.erase(0, name.rfind(u'.') + 1);
    if (!name.empty() && name[0] >= u'a' && name[0] <= u'z') {
        name[0] = static_cast<char16_t>(name[0] - u'a' + u'A');
    }
    return name;
}

/// Whether what lies below the system's marks is dark, as far as the platform looks at it.
bool isDark() {
    const ui::Window window = Application::shared().keyWindow();
    const Traits traits = window ? View::of(window).traits() : screenTraits();
    return traits.style == ui::InterfaceStyle::dark;
}

class Walk {
public:
    Walk(Composition& result, double scale) : result_(result), list_(result.list), scale_(scale) {}

    /// The view's bounds at that place, wherever it is in its superview.
    void fill(ui::View view, const CGAffineTransform& place) {
        const LayerValues shown = View::of(view).layer().presented();
        if (const auto back = inverted(shown.toSuperlayer()); back) {
            add(view, concatenated(*back, place), DisplayGroup::none);
        }
    }

    void screen() {
        const CGAffineTransform points{scale_, 0, 0, scale_, 0, 0};
        const Size size = screenSize();
        const PlacedBox everything{affine(points), {0, 0, size.width, size.height}};
        list_.add({.stamp = screenStamp, .shape = everything, .colour = {0, 0, 0, 1}});
        const Foreground& front = Foreground::shared();
        if (front.isLocked()) {
            return;
        }
        if (front.isHomeScreenShown()) {
            list_.add({.kind = DisplayItem::Kind::content,
                       .stamp = homeScreenStamp,
                       .shape = everything});
        } else {
            windows(points);
        }
        marks(points, systemInk(front.isHomeScreenShown() || isDark()));
    }

private:
    void windows(const CGAffineTransform& points) {
        for (const ui::Window window : Application::shared().visibleWindows()) {
            add(window, points, DisplayGroup::none);
        }
    }

    /// The status bar and the home indicator.
    void marks(const CGAffineTransform& points, const Colour& ink) {
        const ScreenGeometry& phone = ScreenGeometry::current();
        if (!phone.isLandscape()) {
            list_.add({.kind = DisplayItem::Kind::content,
                       .stamp = ink == systemInk(true) ? lightStatusBarStamp : statusBarStamp,
                       .shape = {affine(points), statusBarArea(phone.device)}});
        }
        if (!phone.device.hasHomeButton()) {
            const Rectangle indicator = homeIndicatorArea(screenSize());
            list_.add({.stamp = homeIndicatorStamp,
                       .shape = {affine(points), indicator, indicator.height / 2},
                       .colour = ink});
        }
    }

    void add(ui::View view, const CGAffineTransform& parent, int group) {
        const View& peer = View::of(view);
        const Layer& layer = peer.layer();
        const LayerValues shown = layer.presented();
        const CGAffineTransform place = concatenated(shown.toSuperlayer(), parent);
        if (layer.isHidden() || !(shown.opacity > 0) || !inverted(place)) {
            return;
        }
        const PlacedBox shape{affine(place), rectangle(shown.bounds), shown.cornerRadius};
        DisplayItem item{.group = group, .stamp = layer.contentStamp(), .shape = shape};
        if (shown.opacity < 1) {
            item.group = list_.addGroup({.kind = DisplayGroup::Kind::opacity,
                                         .parent = group,
                                         .stamp = item.stamp,
                                         .opacity = static_cast<double>(shown.opacity)});
        }
        addFill(item, shown.backgroundColor);
        addInside(view, item, place);
        addBorder(item, layer);
    }

    void addFill(DisplayItem item, const Colour& colour) {
        item.colour = colour;
        if (colour.alpha > 0) {
            list_.add(item);
        }
    }

    /// The view's own drawing, and its subviews.
    void addInside(ui::View view, DisplayItem item, const CGAffineTransform& place) {
        const View& peer = View::of(view);
        if (peer.layer().masksToBounds()) {
            item.group = list_.addGroup({.kind = DisplayGroup::Kind::clip,
                                         .parent = item.group,
                                         .stamp = item.stamp,
                                         .shape = item.shape});
            if (list_.groups.back().extents.isEmpty()) {
                return;
            }
        }
        if (drawsItself(view) || peer.layer().contents()) {
            item.kind = DisplayItem::Kind::content;
            list_.add(item);
            result_.views.emplace(item.stamp, view);
        }
        for (const auto& child : peer.children()) {
            add(child, place, item.group);
        }
    }

    void addBorder(DisplayItem item, const Layer& layer) {
        if (layer.borderWidth() > 0) {
            const ui::Color colour = layer.borderUIColor();
            item.kind = DisplayItem::Kind::border;
            item.colour = Color::valueOf(colour ? colour : ui::Color::black());
            item.lineWidth = layer.borderWidth();
            list_.add(item);
        }
    }

    Composition& result_;
    DisplayList& list_;
    double scale_;
};

} // namespace

Size screenSize() {
    const CGSize size = ScreenGeometry::current().size;
    return {size.width, size.height};
}

void Composition::draw(std::uint64_t stamp, Canvas& canvas) const {
    if (stamp == statusBarStamp || stamp == lightStatusBarStamp) {
        drawStatusBar(canvas, ScreenGeometry::current().device,
                      systemInk(stamp == lightStatusBarStamp));
        return;
    }
    if (stamp == homeScreenStamp) {
        drawHomeScreen(canvas, screenSize(), applicationName());
        return;
    }
    const auto view = views.find(stamp);
    if (view == views.end()) {
        return;
    }
    const Layer& layer = View::of(view->second).layer();
    if (const Image* image = UIImage::valueOf(layer.contents().as<ui::Image>()); image != nullptr) {
        canvas.draw(*image, rectangle(layer.bounds()));
    }
    const CurrentCanvas current(canvas);
    const CurrentTraits traits(View::of(view->second).traits());
    view->second.drawRect(layer.bounds());
}

Composition composition(PixelRectangle screen, double scale) {
    Composition result;
    result.list.screen = screen;
    Walk(result, scale).screen();
    return result;
}

Composition composition(ui::View view, PixelRectangle picture) {
    Composition result;
    result.list.screen = picture;
    const CGRect bounds = View::of(view).layer().presented().bounds;
    const double across = picture.width / bounds.size.width;
    const double down = picture.height / bounds.size.height;
    Walk(result, across)
        .fill(view, {across, 0, 0, down, -bounds.origin.x * across, -bounds.origin.y * down});
    return result;
}

} // namespace desktop
