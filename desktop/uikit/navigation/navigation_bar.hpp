// UINavigationBar: the title of a screen, small in the bar or large below it, and its buttons.
#pragma once

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/navigation_bar.hpp"

#include "desktop/class.hpp"

#include <functional>

namespace desktop {

class NavigationBar : public PlatformClass<NavigationBar, ui::NavigationBar> {
public:
    static std::vector<objc::MethodRow> methods();

    ~NavigationBar();

    static constexpr double barHeight = 44;
    /// Called when the back button is tapped; the button is there only with a way back.
    std::function<void()> goBack;

private:
    ui::NavigationBar initWithFrame(CGRect frame);
    void setItems(ns::ArrayOf<ui::NavigationItem> items);
    [[nodiscard]] ns::Array items() const { return items_; }
    [[nodiscard]] ui::NavigationItem topItem() const;
    void showTop();
    void showButtons(ui::NavigationItem top);
    void showBackButton(ui::NavigationItem top);
    void backPressed();
    void layoutSubviews();
    void placeSmallTitle(double left, double right, double top);
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;

    objc::Copied<ns::ArrayOf<ui::NavigationItem>> items_;
    objc::Strong<ui::Label> titleLabel_;
    objc::Strong<ui::View> titleView_;
    objc::Strong<ui::Button> backButton_;
    std::vector<objc::Strong<ui::BarButtonItem>> left_;
    std::vector<objc::Strong<ui::BarButtonItem>> right_;
    objc::Strong<ui::Color> barTintColor_;
    objc::Strong<objc::Object> titleTextAttributes_;
    bool prefersLargeTitles_ = false;
    bool translucent_ = true;
};

} // namespace desktop
