// UINavigationItem: what a navigation bar shows for a screen.
#pragma once

#include "bindings/uikit/navigation_bar.hpp"

#include "desktop/class.hpp"

namespace desktop {

class NavigationItem : public PlatformClass<NavigationItem, ui::NavigationItem> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithTitle:", &NavigationItem::initWithTitle>(),
            objc::property<"title", &NavigationItem::title_>(),
        };
    }

private:
    ui::NavigationItem initWithTitle(ns::String title) {
        title_ = title;
        return self();
    }

    objc::Copied<ns::String> title_;
};

} // namespace desktop
