// View controllers: when they appear and disappear.
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"

namespace desktop {

/// Tells the children whose views lie in this controller's view.
template <class Work>
void ViewController::forVisibleChildren(Work work) const {
    const auto children = children_; // a copy: what is told may change them
    for (const auto& child : children) {
        if (view_ && of(child).view_ && of(child).view_.isDescendantOf(view_)) {
            work(child);
        }
    }
}

void ViewController::viewMovesTo(ui::Window window) {
    const bool arrives = static_cast<bool>(window);
    const bool isThere = appearance_ == Appearance::there || appearance_ == Appearance::appearing;
    if (arrives != isThere) {
        beginAppearance(arrives, false);
        endAppearanceSoon();
    }
}

void ViewController::leaveScreen(bool animated) {
    beginAppearance(false, animated);
    endAppearanceSoon();
}

void ViewController::beginAppearance(bool appearing, bool animated) {
    const Appearance wanted = appearing ? Appearance::appearing : Appearance::disappearing;
    const Appearance settled = appearing ? Appearance::there : Appearance::gone;
    if (appearance_ == wanted || appearance_ == settled) {
        return;
    }
    appearance_ = wanted;
    if (appearing) {
        static_cast<void>(self().view()); // is loaded before it appears
        self().send<"viewWillAppear:">(animated);
    } else {
        self().send<"viewWillDisappear:">(animated);
    }
    forVisibleChildren([&](ui::ViewController child) {
        child.send<"beginAppearanceTransition:animated:">(appearing, animated);
    });
}

void ViewController::endAppearance() {
    const bool appearing = appearance_ == Appearance::appearing;
    if (!appearing && appearance_ != Appearance::disappearing) {
        return;
    }
    forVisibleChildren([](ui::ViewController child) { child.send<"endAppearanceTransition">(); });
    appearance_ = appearing ? Appearance::there : Appearance::gone;
    if (appearing) {
        self().send<"viewDidAppear:">(false);
    } else {
        self().send<"viewDidDisappear:">(false);
    }
}

void ViewController::endAppearanceSoon() {
    MainQueue::shared().add([controller = objc::Strong<ui::ViewController>(self())] {
        if (const ui::Window window = of(controller).view_.window(); window) {
            window.layoutIfNeeded();
        }
        controller.send<"endAppearanceTransition">();
    });
}

} // namespace desktop
