// Toolbars: sharing the room among items and spaces.
#include "desktop/uikit/navigation/toolbar.hpp"

#include "desktop/uikit/navigation/bar_button_item.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr double toolbarMargin = 16;
/// Between two items that no space keeps apart.
constexpr double itemGap = 8;
constexpr double flexible = -1;

} // namespace

std::vector<double> toolbarPlaces(const std::vector<double>& widths, double room) {
    const auto gapBefore = [&widths](std::size_t item) {
        const bool apart = item > 0 && widths[item] >= 0 && widths[item - 1] >= 0;
        return apart ? itemGap : 0;
    };
    double taken = 0;
    double flexibleCount = 0;
    for (std::size_t item = 0; item < widths.size(); ++item) {
        taken += std::max(0.0, widths[item]) + gapBefore(item);
        flexibleCount += widths[item] < 0 ? 1 : 0;
    }
    const double share = flexibleCount > 0 ? std::max(0.0, room - taken) / flexibleCount : 0;
    std::vector<double> places;
    double next = 0;
    for (std::size_t item = 0; item < widths.size(); ++item) {
        next += gapBefore(item);
        places.push_back(next);
        next += widths[item] < 0 ? share : widths[item];
    }
    return places;
}

std::vector<objc::MethodRow> Toolbar::methods() {
    return {
        objc::property<"items", &Toolbar::items, &Toolbar::setItems>(),
        objc::method<"setItems:animated:", &Toolbar::setItemsAnimated>(),
        objc::property<"barTintColor", &Toolbar::barTintColor_>(),
        objc::flag<"translucent", &Toolbar::translucent_>(),
        objc::method<"layoutSubviews", &Toolbar::layoutSubviews>(),
        objc::method<"sizeThatFits:", &Toolbar::sizeThatFits>(),
        objc::method<"intrinsicContentSize", &Toolbar::intrinsicContentSize>(),
    };
}

void Toolbar::setItems(ns::ArrayOf<ui::BarButtonItem> items) {
    for (const objc::Object item : items_) {
        BarButtonItem::of(item).view().removeFromSuperview();
    }
    items_ = items;
    for (const objc::Object item : items_) {
        self().addSubview(BarButtonItem::of(item).view());
    }
    self().setNeedsLayout();
}

void Toolbar::layoutSubviews() {
    const double height = std::min(self().bounds().size.height, barHeight);
    std::vector<double> widths;
    for (const objc::Object item : items_) {
        BarButtonItem& peer = BarButtonItem::of(item);
        widths.push_back(peer.isFlexible() ? flexible : peer.width(height));
    }
    const UIEdgeInsets safe = self().safeAreaInsets();
    const double start = safe.left + toolbarMargin;
    const auto places =
        toolbarPlaces(widths, self().bounds().size.width - start - safe.right - toolbarMargin);
    for (std::size_t index = 0; index < places.size(); ++index) {
        const ui::View view = BarButtonItem::of(items_.at(index)).view();
        const double own = view.bounds().size.height;
        const double tall = view.as<ui::Button>() || own <= 0 ? height : own;
        view.setFrame(
            {{start + places[index], (height - tall) / 2}, {std::max(0.0, widths[index]), tall}});
    }
}

} // namespace desktop
