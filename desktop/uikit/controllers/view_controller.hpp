// UIViewController: owns a view, appears with it, contains and presents other controllers.
#pragma once

#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "bindings/uikit/view_controller.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace desktop {

class Presentation;

/// A controller appears when its view comes into a window, and disappears when the view leaves it
/// or the controller is dismissed, whichever is first.
class ViewController : public PlatformClass<ViewController, ui::ViewController> {
public:
    static std::vector<objc::MethodRow> methods();

    ViewController();
    ~ViewController();

    /// The controller's view is about to come into a window, or (nil) to leave its window. What
    /// follows appearing is told in the next turn of the main loop, when the view is laid out.
    void viewMovesTo(ui::Window window);
    /// The outermost of the controllers that contain this one; itself when none does.
    [[nodiscard]] ui::ViewController outermost() const;
    /// The style to present it in on a phone, which a popover's delegate may have a say in.
    [[nodiscard]] ui::ModalPresentation phoneStyle();
    /// Nil as long as nobody asked for it.
    [[nodiscard]] ui::PopoverPresentationController knownPopover() const { return popover_; }
    /// Tells the controller that it disappears, before its view has left the window.
    void leaveScreen(bool animated);
    /// What bars cover of the view, beyond what the system does; part of the safe area.
    [[nodiscard]] UIEdgeInsets barInsets() const;
    void setBarInsets(UIEdgeInsets insets) { barInsets_ = insets; }
    [[nodiscard]] bool isBeingDismissed() const { return beingDismissed_; }
    [[nodiscard]] const Traits& traits() const { return traits_; }
    /// What its view is in has these traits. The former ones, if the controller's are others now;
    /// whoever asks tells the controller.
    std::optional<Traits> inherit(const Traits& outer);

private:
    enum class Appearance { gone, appearing, there, disappearing };

    // Loading (view_controller.cpp)
    ui::ViewController initWithNibName(ns::String name, objc::Object bundle);
    [[nodiscard]] ui::View view();
    void setView(ui::View view);
    [[nodiscard]] bool isViewLoaded() const { return static_cast<bool>(view_); }
    [[nodiscard]] ui::View viewIfLoaded() const { return view_; }
    void loadViewIfNeeded() { static_cast<void>(view()); }
    void loadView();
    void nothing() {}
    void nothingOf(bool) {}
    void nothingOfObject(objc::Object) {}
    [[nodiscard]] ui::Responder nextResponder() const;
    [[nodiscard]] ui::NavigationItem navigationItem();
    void setTitle(ns::String title);
    [[nodiscard]] ns::String title() const { return title_; }

    void toolbarItemsChanged();

    // Editing (view_controller_editing.cpp)
    [[nodiscard]] bool isEditing() const { return editing_; }
    void setEditing(bool editing);
    void setEditingAnimated(bool editing, bool animated);
    [[nodiscard]] ui::BarButtonItem editButtonItem();
    void editButtonPressed();

    // Traits (view_controller_traits.cpp)
    [[nodiscard]] ui::TraitCollection traitCollection() const;
    [[nodiscard]] ui::InterfaceStyle overrideStyle() const { return overrideStyle_; }
    void setOverrideStyle(ui::InterfaceStyle style);

    // Turning (view_controller_rotation.cpp)
    void viewWillTransition(CGSize size, objc::Object coordinator);
    void willTransition(ui::TraitCollection traits, objc::Object coordinator);
    [[nodiscard]] unsigned long supportedOrientations() const;
    [[nodiscard]] bool shouldAutorotate() const { return true; }

    // Appearing (view_controller_appearance.cpp)
    void beginAppearance(bool appearing, bool animated);
    void endAppearance();
    void endAppearanceSoon();
    template <class Work>
    void forVisibleChildren(Work work) const;

    // Containing (view_controller_containment.cpp)
    [[nodiscard]] ns::Array childViewControllers() const;
    void addChild(ui::ViewController child);
    void removeFromParent();
    [[nodiscard]] ui::NavigationController navigationController() const;

    // Presenting (view_controller_presentation.cpp)
    [[nodiscard]] ui::ViewController presentedViewController() const;
    [[nodiscard]] ui::ViewController presentingViewController() const;
    void present(ui::ViewController controller, bool animated,
                 ui::ViewController::Completion completion);
    [[nodiscard]] bool mayPresent(ui::ViewController controller) const;
    void dismiss(bool animated, ui::ViewController::Completion completion);
    void dismissPresented(bool animated);
    [[nodiscard]] ui::PresentationController presentationController();
    [[nodiscard]] ui::PopoverPresentationController popover();

    objc::Strong<ui::View> view_;
    objc::Copied<ns::String> title_;
    objc::Strong<ui::NavigationItem> navigationItem_;
    objc::Strong<ns::ArrayOf<ui::BarButtonItem>> toolbarItems_;
    objc::Strong<ui::BarButtonItem> editButton_;
    bool editing_ = false;
    std::vector<objc::Strong<ui::ViewController>> children_;
    ui::ViewController parent_;
    objc::Strong<ui::ViewController> presented_;
    ui::ViewController presenting_;
    /// How this controller is shown while it is presented.
    std::shared_ptr<Presentation> presentation_;
    objc::Strong<ui::PopoverPresentationController> popover_;
    ui::ModalPresentation style_ = ui::ModalPresentation::automatic;
    long transition_ = 0;
    Traits traits_ = screenTraits();
    ui::InterfaceStyle overrideStyle_ = ui::InterfaceStyle::unspecified;
    CGSize preferredContentSize_;
    UIEdgeInsets barInsets_;
    UIEdgeInsets additionalInsets_;
    Appearance appearance_ = Appearance::gone;
    bool loading_ = false;
    bool beingPresented_ = false;
    bool beingDismissed_ = false;
    bool modalInPresentation_ = false;
    bool definesContext_ = false;
    bool hidesBottomBar_ = false;
};

} // namespace desktop
