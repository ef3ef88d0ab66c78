// UIToolbar: a row of buttons at the foot of a screen.
#pragma once

#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/toolbar.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/views/view.hpp"

#include <vector>

namespace desktop {

class Toolbar : public PlatformClass<Toolbar, ui::Toolbar> {
public:
    static std::vector<objc::MethodRow> methods();

    static constexpr double barHeight = 44;

private:
    [[nodiscard]] ns::Array items() const { return items_; }
    void setItems(ns::ArrayOf<ui::BarButtonItem> items);
    void setItemsAnimated(ns::ArrayOf<ui::BarButtonItem> items, bool) { setItems(items); }
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const { return {room.width, barHeight}; }
    /// As high as a bar where constraints say no height, and as wide as they say.
    [[nodiscard]] CGSize intrinsicContentSize() const { return {noIntrinsicMetric, barHeight}; }

    objc::Copied<ns::ArrayOf<ui::BarButtonItem>> items_;
    objc::Strong<ui::Color> barTintColor_;
    bool translucent_ = true;
};

/// The starts of items of these widths in a row that wide; the room that is left is shared by the
/// flexible ones, which are marked by a negative width.
[[nodiscard]] std::vector<double> toolbarPlaces(const std::vector<double>& widths, double room);

} // namespace desktop
