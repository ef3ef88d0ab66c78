// UIViewController.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/window.hpp"

namespace ui {

struct BarButtonItem;
struct NavigationController;
struct NavigationItem;
struct PopoverPresentationController;

/// How a presented controller covers what is there; the platform's numbers.
enum class ModalPresentation : long {
    automatic = -2,
    none = -1,
    fullScreen = 0,
    pageSheet = 1,
    formSheet = 2,
    currentContext = 3,
    custom = 4,
    overFullScreen = 5,
    overCurrentContext = 6,
    popover = 7,
};

struct ViewController : objc::Kind<ViewController, "UIViewController", Responder> {
    using Kind::Kind;
    /// Called when a presentation or dismissal is over; may be nil.
    using Completion = objc::Block<void()>;

    /// Loads the view when it is not loaded yet.
    [[nodiscard]] View view() const { return send<"view", View>(); }
    void setView(View view) const { send<"setView:">(view); }
    [[nodiscard]] bool isViewLoaded() const { return send<"isViewLoaded", bool>(); }
    void viewDidLoad() const { send<"viewDidLoad">(); }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    void setTitle(ns::String title) const { send<"setTitle:">(title); }

    [[nodiscard]] TraitCollection traitCollection() const {
        return send<"traitCollection", TraitCollection>();
    }
    /// The style of the controller's view and of what lies in it, not of what it presents.
    void setOverrideUserInterfaceStyle(InterfaceStyle style) const {
        send<"setOverrideUserInterfaceStyle:">(style);
    }
    [[nodiscard]] InterfaceStyle overrideUserInterfaceStyle() const {
        return send<"overrideUserInterfaceStyle", InterfaceStyle>();
    }

    /// The controller that this one, or one that contains it, presents.
    [[nodiscard]] ViewController presentedViewController() const {
        return send<"presentedViewController", ViewController>();
    }
    /// Whether it is on its way off the screen.
    [[nodiscard]] bool isBeingDismissed() const { return send<"isBeingDismissed", bool>(); }
    [[nodiscard]] ViewController presentingViewController() const {
        return send<"presentingViewController", ViewController>();
    }
    void present(ViewController controller, bool animated, Completion completion = {}) const {
        send<"presentViewController:animated:completion:">(controller, animated, completion);
    }
    /// Dismisses what this controller presents, or else this controller itself.
    void dismiss(bool animated, Completion completion = {}) const {
        send<"dismissViewControllerAnimated:completion:">(animated, completion);
    }
    [[nodiscard]] ModalPresentation modalPresentationStyle() const {
        return send<"modalPresentationStyle", ModalPresentation>();
    }
    void setModalPresentationStyle(ModalPresentation style) const {
        send<"setModalPresentationStyle:">(style);
    }
    [[nodiscard]] CGSize preferredContentSize() const {
        return send<"preferredContentSize", CGSize>();
    }
    void setPreferredContentSize(CGSize size) const { send<"setPreferredContentSize:">(size); }
    /// Nil unless the style is that of a popover. Defined in popover_presentation_controller.hpp.
    [[nodiscard]] PopoverPresentationController popoverPresentationController() const;

    /// Whether what is presented over its context stays with the controller's view, and goes with
    /// it.
    void setDefinesPresentationContext(bool defines) const {
        send<"setDefinesPresentationContext:">(defines);
    }

    [[nodiscard]] bool isEditing() const { return send<"isEditing", bool>(); }
    /// A button that begins and ends editing. Defined in bar_button_item.hpp.
    [[nodiscard]] BarButtonItem editButtonItem() const;
    /// Bar button items, for a navigation controller's toolbar.
    void setToolbarItems(ns::Array items) const { send<"setToolbarItems:">(items); }

    [[nodiscard]] ViewController parent() const {
        return send<"parentViewController", ViewController>();
    }
    void addChild(ViewController child) const { send<"addChildViewController:">(child); }
    void removeFromParent() const { send<"removeFromParentViewController">(); }
    /// Defined in navigation_controller.hpp.
    [[nodiscard]] NavigationController navigationController() const;
    [[nodiscard]] NavigationItem navigationItem() const;
};

inline ViewController Window::rootViewController() const {
    return send<"rootViewController", ViewController>();
}
inline void Window::setRootViewController(ViewController controller) const {
    send<"setRootViewController:">(controller);
}

} // namespace ui
