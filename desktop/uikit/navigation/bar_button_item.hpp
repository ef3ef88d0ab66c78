// UIBarButtonItem: a button, a view or a space in a bar.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/navigation_bar.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class BarButtonItem : public PlatformClass<BarButtonItem, ui::BarButtonItem> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The view that shows the item; nil for a space.
    [[nodiscard]] ui::View view();
    [[nodiscard]] bool isFlexible() const {
        return systemItem_ == ui::BarButtonSystemItem::flexibleSpace;
    }
    /// The width that it takes in a bar of that height; a flexible space's is 0.
    [[nodiscard]] double width(double barHeight);

private:
    ui::BarButtonItem initWithTitle(ns::String title, ui::BarButtonStyle style, objc::Object target,
                                    SEL action);
    ui::BarButtonItem initWithImage(ui::Image image, ui::BarButtonStyle style, objc::Object target,
                                    SEL action);
    ui::BarButtonItem initWithSystemItem(ui::BarButtonSystemItem item, objc::Object target,
                                         SEL action);
    ui::BarButtonItem initWithCustomView(ui::View view);
    void act(objc::Object target, SEL action);
    void contentChanged();
    void pressed();

    objc::Copied<ns::String> title_;
    objc::Strong<ui::Image> image_;
    objc::Strong<ui::Color> tintColor_;
    objc::Strong<ui::View> customView_;
    objc::Strong<ui::Button> button_;
    ui::BarButtonStyle style_ = ui::BarButtonStyle::plain;
    ui::BarButtonSystemItem systemItem_ = ordinary;
    objc::Weak<objc::Object> target_;
    SEL action_ = nullptr;
    double width_ = 0;
    long tag_ = 0;
    bool enabled_ = true;

    /// No system item.
    static constexpr auto ordinary = static_cast<ui::BarButtonSystemItem>(-1);
};

} // namespace desktop
