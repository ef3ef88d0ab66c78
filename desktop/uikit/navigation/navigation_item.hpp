// UINavigationItem: what a navigation bar shows for a screen.
#pragma once

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/navigation_bar.hpp"

#include "desktop/class.hpp"

#include <functional>

namespace desktop {

class NavigationItem : public PlatformClass<NavigationItem, ui::NavigationItem> {
public:
    static std::vector<objc::MethodRow> methods() {
        return {
            objc::method<"initWithTitle:", &NavigationItem::initWithTitle>(),
            objc::property<"title", &NavigationItem::title_, &NavigationItem::tell>(),
            objc::property<"prompt", &NavigationItem::prompt_>(),
            objc::property<"titleView", &NavigationItem::titleView_, &NavigationItem::tell>(),
            objc::property<"leftBarButtonItems", &NavigationItem::left_, &NavigationItem::tell>(),
            objc::property<"rightBarButtonItems", &NavigationItem::right_, &NavigationItem::tell>(),
            objc::property<"leftBarButtonItem", &NavigationItem::leftItem,
                           &NavigationItem::setLeftItem>(),
            objc::property<"rightBarButtonItem", &NavigationItem::rightItem,
                           &NavigationItem::setRightItem>(),
            objc::property<"backBarButtonItem", &NavigationItem::backItem_>(),
            objc::property<"backButtonTitle", &NavigationItem::backTitle_>(),
            objc::property<"hidesBackButton", &NavigationItem::hidesBack_, &NavigationItem::tell>(),
            objc::property<"largeTitleDisplayMode", &NavigationItem::largeTitleMode_>(),
        };
    }

    [[nodiscard]] ui::View titleView() const { return titleView_; }
    [[nodiscard]] ns::Array left() const { return left_; }
    [[nodiscard]] ns::Array right() const { return right_; }
    [[nodiscard]] bool hidesBack() const { return hidesBack_; }
    /// What the button says that leads back to this item's screen.
    [[nodiscard]] ns::String backTitle() const {
        if (backItem_.title()) {
            return backItem_.title();
        }
        return backTitle_ ? backTitle_ : title_;
    }
    /// Called when something changes that a bar shows.
    std::function<void()> changed;

private:
    ui::NavigationItem initWithTitle(ns::String title) {
        title_ = title;
        return self();
    }
    void tell() {
        if (changed) {
            changed();
        }
    }
    static ns::Array listOf(ui::BarButtonItem item) {
        const auto list = ns::MutableArray::make();
        if (item) {
            list.add(item);
        }
        return list;
    }
    [[nodiscard]] ui::BarButtonItem leftItem() const {
        return left_.first().assume<ui::BarButtonItem>();
    }
    [[nodiscard]] ui::BarButtonItem rightItem() const {
        return right_.first().assume<ui::BarButtonItem>();
    }
    void setLeftItem(ui::BarButtonItem item) { self().setLeftBarButtonItems(listOf(item)); }
    void setRightItem(ui::BarButtonItem item) { self().setRightBarButtonItems(listOf(item)); }

    objc::Copied<ns::String> title_;
    objc::Copied<ns::String> prompt_;
    objc::Copied<ns::String> backTitle_;
    objc::Strong<ui::View> titleView_;
    objc::Copied<ns::ArrayOf<ui::BarButtonItem>> left_;
    objc::Copied<ns::ArrayOf<ui::BarButtonItem>> right_;
    objc::Strong<ui::BarButtonItem> backItem_;
    bool hidesBack_ = false;
    long largeTitleMode_ = 0;
};

} // namespace desktop
