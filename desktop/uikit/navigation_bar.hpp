// UINavigationBar: the title of a screen, small in the bar or large below it.
#pragma once

#include "bindings/uikit/label.hpp"
#include "bindings/uikit/navigation_bar.hpp"

#include "desktop/class.hpp"

namespace desktop {

class NavigationBar : public PlatformClass<NavigationBar, ui::NavigationBar> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &NavigationBar::initWithFrame>(),
            objc::property<"items", &NavigationBar::items_, &NavigationBar::showTop>(),
            objc::property<"prefersLargeTitles", &NavigationBar::prefersLargeTitles_,
                           &NavigationBar::showTop>(),
            objc::method<"layoutSubviews", &NavigationBar::layoutSubviews>(),
            objc::method<"sizeThatFits:", &NavigationBar::sizeThatFits>(),
        };
    }

private:
    ui::NavigationBar initWithFrame(CGRect frame);
    void showTop();
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;

    objc::Strong<ns::Array> items_;
    objc::Strong<ui::Label> titleLabel_;
    bool prefersLargeTitles_ = false;
};

} // namespace desktop
