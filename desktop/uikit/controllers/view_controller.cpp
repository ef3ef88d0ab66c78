// View controllers: their table, and the loading of their views.
#include "desktop/uikit/controllers/view_controller.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/uikit/presentation/presentation.hpp"
#include "desktop/uikit/views/view.hpp"

namespace desktop {

std::vector<objc::MethodRow> ViewController::methods() {
    return {
        objc::method<"initWithNibName:bundle:", &ViewController::initWithNibName>(),
        objc::property<"view", &ViewController::view, &ViewController::setView>(),
        objc::method<"isViewLoaded", &ViewController::isViewLoaded>(),
        objc::method<"viewIfLoaded", &ViewController::viewIfLoaded>(),
        objc::method<"loadViewIfNeeded", &ViewController::loadViewIfNeeded>(),
        objc::method<"loadView", &ViewController::loadView>(),
        objc::method<"viewDidLoad", &ViewController::nothing>(),
        objc::method<"viewWillLayoutSubviews", &ViewController::nothing>(),
        objc::method<"viewDidLayoutSubviews", &ViewController::nothing>(),
        objc::method<"nextResponder", &ViewController::nextResponder>(),
        objc::property<"title", &ViewController::title, &ViewController::setTitle>(),
        objc::method<"navigationItem", &ViewController::navigationItem>(),
        objc::property<"toolbarItems", &ViewController::toolbarItems_,
                       &ViewController::toolbarItemsChanged>(),
        objc::method<"isEditing", &ViewController::isEditing>(),
        objc::method<"setEditing:", &ViewController::setEditing>(),
        objc::method<"setEditing:animated:", &ViewController::setEditingAnimated>(),
        objc::method<"editButtonItem", &ViewController::editButtonItem>(),
        objc::method<"editButtonPressed", &ViewController::editButtonPressed>(),
        objc::property<"hidesBottomBarWhenPushed", &ViewController::hidesBottomBar_>(),

        objc::property<"additionalSafeAreaInsets", &ViewController::additionalInsets_>(),

        objc::method<"viewSafeAreaInsetsDidChange", &ViewController::nothing>(),
        objc::method<"viewWillTransitionToSize:withTransitionCoordinator:",
                     &ViewController::viewWillTransition>(),
        objc::method<"willTransitionToTraitCollection:withTransitionCoordinator:",
                     &ViewController::willTransition>(),
        objc::method<"supportedInterfaceOrientations", &ViewController::supportedOrientations>(),
        objc::method<"shouldAutorotate", &ViewController::shouldAutorotate>(),
        objc::method<"traitCollection", &ViewController::traitCollection>(),
        objc::method<"traitCollectionDidChange:", &ViewController::nothingOfObject>(),
        objc::property<"overrideUserInterfaceStyle", &ViewController::overrideStyle,
                       &ViewController::setOverrideStyle>(),

        objc::method<"viewWillAppear:", &ViewController::nothingOf>(),
        objc::method<"viewDidAppear:", &ViewController::nothingOf>(),
        objc::method<"viewWillDisappear:", &ViewController::nothingOf>(),
        objc::method<"viewDidDisappear:", &ViewController::nothingOf>(),
        objc::method<"beginAppearanceTransition:animated:", &ViewController::beginAppearance>(),
        objc::method<"endAppearanceTransition", &ViewController::endAppearance>(),
        objc::method<"isBeingPresented", &ViewController::beingPresented_>(),
        objc::method<"isBeingDismissed", &ViewController::beingDismissed_>(),

        objc::method<"parentViewController", &ViewController::parent_>(),
        objc::method<"childViewControllers", &ViewController::childViewControllers>(),
        objc::method<"addChildViewController:", &ViewController::addChild>(),
        objc::method<"removeFromParentViewController", &ViewController::removeFromParent>(),
        objc::method<"willMoveToParentViewController:", &ViewController::nothingOfObject>(),
        objc::method<"didMoveToParentViewController:", &ViewController::nothingOfObject>(),
        objc::method<"navigationController", &ViewController::navigationController>(),

        objc::method<"presentedViewController", &ViewController::presentedViewController>(),
        objc::method<"presentingViewController", &ViewController::presentingViewController>(),
        objc::method<"presentViewController:animated:completion:", &ViewController::present>(),
        objc::method<"dismissViewControllerAnimated:completion:", &ViewController::dismiss>(),
        objc::method<"presentationController", &ViewController::presentationController>(),
        objc::method<"popoverPresentationController", &ViewController::popover>(),
        objc::property<"modalPresentationStyle", &ViewController::style_>(),
        objc::property<"modalTransitionStyle", &ViewController::transition_>(),
        objc::property<"preferredContentSize", &ViewController::preferredContentSize_>(),
        objc::flag<"modalInPresentation", &ViewController::modalInPresentation_>(),
        objc::property<"definesPresentationContext", &ViewController::definesContext_>(),
    };
}

ViewController::ViewController() = default;

ViewController::~ViewController() {
    setView(nullptr);
    for (const auto& child : children_) {
        of(child).parent_ = nullptr;
    }
    if (presented_) {
        dismissPresented(false);
    }
}

/// Interface files are not a thing of this platform: the names are ignored.
ui::ViewController ViewController::initWithNibName(ns::String, objc::Object) {
    return self().send<"init", ui::ViewController>();
}

ui::View ViewController::view() {
    if (!view_ && !std::exchange(loading_, true)) {
        self().send<"loadView">();
        if (!view_) {
            loadView(); // a subclass's method may have made none
        }
        loading_ = false;
        self().viewDidLoad();
    }
    return view_;
}

void ViewController::setView(ui::View view) {
    if (view_) {
        View::of(view_).setController(nullptr);
    }
    view_ = view;
    if (view_) {
        View::of(view_).setController(self());
        View::of(view_).inherit(View::of(view_).outerTraits());
    }
}

void ViewController::loadView() {
    const auto view = ui::View::withFrame(ui::Screen::mainScreen().bounds());
    view.setBackgroundColor(ui::Color::systemBackground());
    view.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    setView(view);
}

UIEdgeInsets ViewController::barInsets() const {
    return {barInsets_.top + additionalInsets_.top, barInsets_.left + additionalInsets_.left,
            barInsets_.bottom + additionalInsets_.bottom,
            barInsets_.right + additionalInsets_.right};
}

ui::Responder ViewController::nextResponder() const { return view_.superview(); }

ui::NavigationItem ViewController::navigationItem() {
    if (!navigationItem_) {
        navigationItem_ = ui::NavigationItem::withTitle(title_);
    }
    return navigationItem_;
}

void ViewController::setTitle(ns::String title) {
    title_ = title;
    if (navigationItem_) {
        navigationItem_.setTitle(title);
    }
}

} // namespace desktop
