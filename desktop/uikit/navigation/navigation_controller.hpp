// UINavigationController: a stack of screens below a bar.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/toolbar.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class NavigationController : public PlatformClass<NavigationController, ui::NavigationController> {
public:
    static std::vector<objc::MethodRow> methods();

    ~NavigationController();

private:
    ui::NavigationController init();
    ui::NavigationController initWithRoot(ui::ViewController root);
    void loadView();
    [[nodiscard]] ui::NavigationBar navigationBar() const { return bar_; }
    [[nodiscard]] ns::Array viewControllers() const;
    void setViewControllers(ns::ArrayOf<ui::ViewController> controllers);
    void setViewControllersAnimated(ns::ArrayOf<ui::ViewController> controllers, bool) {
        setViewControllers(controllers);
    }
    [[nodiscard]] ui::ViewController topViewController() const;
    void push(ui::ViewController controller, bool animated);
    ui::ViewController pop(bool animated);
    ns::Array popToRoot(bool animated);
    ns::Array popTo(ui::ViewController controller, bool animated);
    void setBarHidden(bool hidden);
    void setBarHiddenAnimated(bool hidden, bool) { setBarHidden(hidden); }
    void setToolbarHidden(bool hidden);
    void setToolbarHiddenAnimated(bool hidden, bool) { setToolbarHidden(hidden); }
    [[nodiscard]] CGSize preferredContentSize() const;

    /// Shows the top controller in place of `former`, coming from the right or the left.
    void show(ui::ViewController former, bool animated, bool fromRight);
    /// The place among the subviews right above the former screen.
    [[nodiscard]] long placeAbove(ui::ViewController former) const;
    void showBarItems();
    void layOut(CGRect bounds);

    std::vector<objc::Strong<ui::ViewController>> stack_;
    objc::Strong<ui::NavigationBar> bar_;
    objc::Strong<ui::View> barBackground_;
    objc::Strong<ui::View> barLine_;
    objc::Strong<ui::Toolbar> toolbar_;
    objc::Strong<ui::View> toolbarBackground_;
    objc::Weak<objc::Object> delegate_;
    bool barHidden_ = false;
    bool toolbarHidden_ = true;
};

} // namespace desktop
