// Navigation controllers: the stack, and what lies where.
#include "desktop/uikit/navigation/navigation_controller.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/navigation/navigation_bar.hpp"
#include "desktop/uikit/navigation/toolbar.hpp"
#include "desktop/uikit/presentation/transition.hpp"
#include "desktop/uikit/presentation/transition_view.hpp"
#include "desktop/uikit/values/color.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

constexpr double pushDuration = 0.35;

/// The platform's bars let what is behind them shine through, so blurred that it is a grey.
ui::Color barColor() { return Color::adaptive({0.976, 0.976, 0.976}, {0.086, 0.086, 0.086}); }

ui::Color lineColor() { return ui::Color::sendClass<"separatorColor", ui::Color>(); }

} // namespace

std::vector<objc::MethodRow> NavigationController::methods() {
    return {
        objc::method<"init", &NavigationController::init>(),
        objc::method<"initWithRootViewController:", &NavigationController::initWithRoot>(),
        objc::method<"loadView", &NavigationController::loadView>(),
        objc::method<"navigationBar", &NavigationController::navigationBar>(),
        objc::method<"toolbar", &NavigationController::toolbar_>(),
        objc::property<"viewControllers", &NavigationController::viewControllers,
                       &NavigationController::setViewControllers>(),
        objc::method<"setViewControllers:animated:",
                     &NavigationController::setViewControllersAnimated>(),
        objc::method<"topViewController", &NavigationController::topViewController>(),
        objc::method<"visibleViewController", &NavigationController::topViewController>(),
        objc::method<"pushViewController:animated:", &NavigationController::push>(),
        objc::method<"popViewControllerAnimated:", &NavigationController::pop>(),
        objc::method<"popToRootViewControllerAnimated:", &NavigationController::popToRoot>(),
        objc::method<"popToViewController:animated:", &NavigationController::popTo>(),
        objc::method<"isNavigationBarHidden", &NavigationController::barHidden_>(),
        objc::method<"setNavigationBarHidden:", &NavigationController::setBarHidden>(),
        objc::method<"setNavigationBarHidden:animated:",
                     &NavigationController::setBarHiddenAnimated>(),
        objc::method<"isToolbarHidden", &NavigationController::toolbarHidden_>(),
        objc::method<"setToolbarHidden:", &NavigationController::setToolbarHidden>(),
        objc::method<"setToolbarHidden:animated:",
                     &NavigationController::setToolbarHiddenAnimated>(),
        objc::method<"preferredContentSize", &NavigationController::preferredContentSize>(),
        objc::property<"delegate", &NavigationController::delegate_>(),
    };
}

ui::NavigationController NavigationController::init() {
    super<"init", ui::ViewController>();
    bar_ = ui::NavigationBar::withFrame({});
    NavigationBar::of(bar_).goBack = [this] { self().pop(true); };
    toolbar_ = ui::Toolbar::withFrame({});
    return self();
}

NavigationController::~NavigationController() {
    if (bar_) {
        NavigationBar::of(bar_).goBack = nullptr;
    }
}

ui::NavigationController NavigationController::initWithRoot(ui::ViewController root) {
    self().send<"init", ui::ViewController>();
    if (root) {
        self().push(root, false);
    }
    return self();
}

void NavigationController::loadView() {
    const auto view = LayoutContainerKind::make<"initWithFrame:">(CGRect());
    view.setBackgroundColor(ui::Color::systemBackground());
    using enum ui::ViewAutoresizing;
    view.setAutoresizingMask(flexibleWidth | flexibleHeight);
    // The view may outlive its controller, as at the end of a presentation.
    LayoutContainer::of(view).arrange = [known = objc::Weak(self())](CGRect bounds) {
        if (const auto kept = known.strong(); kept) {
            of(kept).layOut(bounds);
        }
    };
    barBackground_ = ui::View::withFrame({});
    barBackground_.setBackgroundColor(barColor());
    barLine_ = ui::View::withFrame({});
    barLine_.setBackgroundColor(lineColor());
    toolbarBackground_ = ui::View::withFrame({});
    toolbarBackground_.setBackgroundColor(barColor());
    view.addSubview(barBackground_);
    view.addSubview(barLine_);
    view.addSubview(bar_);
    view.addSubview(toolbarBackground_);
    view.addSubview(toolbar_);
    self().setView(view);
    show(nullptr, false, true);
}

ns::Array NavigationController::viewControllers() const {
    const auto array = ns::MutableArray::make();
    for (const auto& controller : stack_) {
        array.add(controller);
    }
    return array;
}

void NavigationController::setViewControllers(ns::ArrayOf<ui::ViewController> controllers) {
    const objc::Strong<ui::ViewController> former = topViewController();
    for (const auto& controller : std::exchange(stack_, {})) {
        if (!controllers.contains(controller)) {
            controller.removeFromParent();
        }
    }
    for (const objc::Object one : controllers) {
        const auto controller = one.assume<ui::ViewController>();
        self().addChild(controller);
        stack_.emplace_back(controller);
    }
    show(former, false, true);
}

ui::ViewController NavigationController::topViewController() const {
    return stack_.empty() ? ui::ViewController() : static_cast<ui::ViewController>(stack_.back());
}

void NavigationController::push(ui::ViewController controller, bool animated) {
    if (!controller) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"Application tried to push a nil view controller on target."_ns)
            .raise();
    }
    if (std::ranges::find(stack_, controller) != stack_.end() || controller == self()) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"Pushing the same view controller instance more than once is not "
                            u"supported"_ns)
            .raise();
    }
    const objc::Strong<ui::ViewController> former = topViewController();
    self().addChild(controller);
    stack_.emplace_back(controller);
    controller.send<"didMoveToParentViewController:">(self());
    show(former, animated, true);
}

ui::ViewController NavigationController::pop(bool animated) {
    if (stack_.size() < 2) {
        return nullptr;
    }
    const objc::Strong<ui::ViewController> former = stack_.back();
    stack_.pop_back();
    show(former, animated, false);
    former.send<"willMoveToParentViewController:">(ui::ViewController());
    former.removeFromParent();
    return former.autoreleased();
}

ns::Array NavigationController::popToRoot(bool animated) {
    return stack_.empty() ? ns::Array() : popTo(stack_.front(), animated);
}

ns::Array NavigationController::popTo(ui::ViewController controller, bool animated) {
    const auto popped = ns::MutableArray::make();
    if (std::ranges::find(stack_, controller) != stack_.end()) {
        while (stack_.back() != controller) {
            popped.insert(stack_.back(), 0);
            pop(animated && popped.count() == 1);
        }
    }
    return popped;
}

void NavigationController::setBarHidden(bool hidden) {
    barHidden_ = hidden;
    self().view().setNeedsLayout();
}

void NavigationController::setToolbarHidden(bool hidden) {
    toolbarHidden_ = hidden;
    self().view().setNeedsLayout();
}

/// A popover is as large as the screen in it wants to be.
CGSize NavigationController::preferredContentSize() const {
    const CGSize own = super<"preferredContentSize", CGSize>();
    return own == CGSize() ? topViewController().preferredContentSize() : own;
}

void NavigationController::show(ui::ViewController former, bool animated, bool fromRight) {
    showBarItems();
    const ui::ViewController top = topViewController();
    if (!self().isViewLoaded() || former == top) {
        return;
    }
    const ui::View view = self().view();
    const double width = view.bounds().size.width * (fromRight ? 1 : -1);
    if (former) {
        ViewController::of(former).leaveScreen(animated);
    }
    if (top) {
        view.insertSubview(top.view(), former && !fromRight ? 0 : placeAbove(former));
    }
    layOut(view.bounds());
    const ui::View coming = top ? top.view() : ui::View();
    const objc::Strong<ui::View> going = former ? former.view() : ui::View();
    if (animated) {
        constexpr double parallax = 0.3; // of the width: what lies below moves less
        coming.setTransform({1, 0, 0, 1, fromRight ? width : width * parallax, 0});
    }
    transition(
        animated, pushDuration,
        [&] {
            coming.setTransform(CGAffineTransform());
            constexpr double parallax = 0.3;
            going.setTransform({1, 0, 0, 1, fromRight ? -width * parallax : -width, 0});
        },
        [going, kept = objc::Strong<ui::View>(view)] {
            going.setTransform(CGAffineTransform());
            if (going.superview() == kept) {
                going.removeFromSuperview();
            }
        });
}

long NavigationController::placeAbove(ui::ViewController former) const {
    return former && former.isViewLoaded() && former.view().superview() == self().view() ? 1 : 0;
}

void NavigationController::showBarItems() {
    const auto items = ns::MutableArray::make();
    for (const auto& controller : stack_) {
        items.add(controller.navigationItem());
    }
    bar_.setItems(items);
    toolbar_.setItems(topViewController().send<"toolbarItems", ns::Array>());
}

void NavigationController::layOut(CGRect bounds) {
    const UIEdgeInsets safe = self().view().safeAreaInsets();
    const double width = bounds.size.width;
    const double barHeight = barHidden_ ? 0 : bar_.sizeThatFits({width, 0}).height;
    const double toolbarHeight = toolbarHidden_ ? 0 : Toolbar::barHeight;
    const double line = 1 / ui::Screen::mainScreen().scale();
    const double bottom = safe.top + barHeight;
    bar_.setFrame({{0, safe.top}, {width, barHeight}});
    barBackground_.setFrame({{}, {width, bottom}});
    barLine_.setFrame({{0, bottom}, {width, line}});
    const double foot = bounds.size.height - safe.bottom - toolbarHeight;
    toolbar_.setFrame({{0, foot}, {width, toolbarHeight}});
    toolbarBackground_.setFrame({{0, foot}, {width, toolbarHeight + safe.bottom}});
    for (const ui::View part : {ui::View(bar_), ui::View(barBackground_), ui::View(barLine_)}) {
        part.setHidden(barHidden_);
    }
    toolbar_.setHidden(toolbarHidden_);
    toolbarBackground_.setHidden(toolbarHidden_);
    if (const ui::ViewController top = topViewController(); top) {
        ViewController::of(top).setBarInsets({barHeight, 0, toolbarHeight, 0});
        top.view().setFrame(bounds);
    }
}

} // namespace desktop
