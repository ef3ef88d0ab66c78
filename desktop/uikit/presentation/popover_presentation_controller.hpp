// UIPresentationController and UIPopoverPresentationController: where a popover comes from, and who
// is asked about it.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"

#include "desktop/class.hpp"

namespace desktop {

class PresentationController
    : public PlatformClass<PresentationController, ui::PresentationController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"delegate", &PresentationController::delegate_>(),
        };
    }

private:
    objc::Weak<objc::Object> delegate_;
};

class PopoverPresentationController
    : public PlatformClass<PopoverPresentationController, ui::PopoverPresentationController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"sourceView", &PopoverPresentationController::sourceView_>(),
            objc::property<"sourceRect", &PopoverPresentationController::sourceRect_,
                           &PopoverPresentationController::rectSet>(),
            objc::property<"barButtonItem", &PopoverPresentationController::barButtonItem_>(),
            objc::property<"permittedArrowDirections", &PopoverPresentationController::sides_>(),
            objc::property<"backgroundColor", &PopoverPresentationController::background_>(),
        };
    }

    /// The view that the popover belongs to: the source view, or that of the bar button item.
    [[nodiscard]] ui::View anchorView() const {
        return sourceView_ ? static_cast<ui::View>(sourceView_)
                           : barButtonItem_.send<"view", ui::View>();
    }
    /// In the anchor view's coordinates; all of it unless a rectangle was set.
    [[nodiscard]] CGRect anchor() const { return hasRect_ ? sourceRect_ : anchorView().bounds(); }
    [[nodiscard]] ui::PopoverArrowDirection sides() const { return sides_; }
    [[nodiscard]] ui::Color background() const { return background_; }

private:
    void rectSet() { hasRect_ = true; }

    objc::Strong<ui::View> sourceView_;
    objc::Strong<objc::Object> barButtonItem_;
    objc::Strong<ui::Color> background_;
    CGRect sourceRect_;
    ui::PopoverArrowDirection sides_ = ui::PopoverArrowDirection::any;
    bool hasRect_ = false;
};

} // namespace desktop
