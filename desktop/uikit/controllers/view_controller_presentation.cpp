// View controllers: presenting and dismissing others.
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/log.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/presentation/presentation.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

std::string described(ui::ViewController controller) {
    return controller.send<"description", ns::String>().utf8();
}

[[noreturn]] void refuse(const std::string& reason) {
    ns::Exception::with(u"NSInvalidArgumentException"_ns, ns::String::fromUtf8(reason)).raise();
}

bool isEmptyAlert(ui::ViewController controller) {
    const auto alert = controller.as<ui::AlertController>();
    return alert && !alert.title() && !alert.message() && alert.actions().count() == 0;
}

void soon(std::function<void()> work) { MainQueue::shared().add(std::move(work)); }

} // namespace

ui::ViewController ViewController::presentedViewController() const {
    for (ui::ViewController one = self(); one; one = of(one).parent_) {
        if (of(one).presented_) {
            return of(one).presented_;
        }
    }
    return nullptr;
}

ui::ViewController ViewController::presentingViewController() const {
    for (ui::ViewController one = self(); one; one = of(one).parent_) {
        if (of(one).presenting_) {
            return of(one).presenting_;
        }
    }
    return nullptr;
}

/// Whether this controller, the outermost one, can present: raises and logs what the phone does.
bool ViewController::mayPresent(ui::ViewController controller) const {
    if (!controller) {
        refuse("Application tried to present a nil modal view controller on target " +
               described(self()) + ".");
    }
    if (of(controller).presenting_) {
        refuse("Application tried to present modally a view controller " + described(controller) +
               " that is already being presented by " + described(of(controller).presenting_) +
               ".");
    }
    if (controller == self() || of(controller).parent_) {
        refuse("Application tried to present modally an active view controller " +
               described(controller) + ".");
    }
    if (isEmptyAlert(controller)) {
        refuse("UIAlertController must have a title, a message or an action to display");
    }
    const std::string attempt =
        "Attempt to present " + described(controller) + " on " + described(self());
    if (presented_) {
        ns::log(attempt + " which is already presenting " + described(presented_));
        return false;
    }
    if (!view_.window() && !presenting_) {
        ns::log(attempt + " whose view is not in the window hierarchy!");
        return false;
    }
    return true;
}

void ViewController::present(ui::ViewController controller, bool animated,
                             ui::ViewController::Completion completion) {
    ViewController& presenter = of(outermost());
    if (!presenter.mayPresent(controller)) {
        return;
    }
    ViewController& presented = of(controller);
    const auto presentation = std::make_shared<Presentation>(presenter.self(), controller);
    presenter.presented_ = controller;
    presented.presenting_ = presenter.self();
    presented.presentation_ = presentation;
    presented.beingPresented_ = true;
    static_cast<void>(controller.view()); // loaded at once; shown when the caller is done
    soon([presentation, animated, kept = objc::Strong<ui::ViewController>(controller),
          done = objc::Copied<ui::ViewController::Completion>(completion)] {
        if (of(kept).presentation_ != presentation) {
            return; // dismissed before it came up
        }
        // What presents may itself have come up only now.
        presentation->enter(of(kept).presenting_.view().window(), animated);
        soon([kept, done] {
            of(kept).beingPresented_ = false;
            if (done) {
                done();
            }
        });
    });
}

void ViewController::dismiss(bool animated, ui::ViewController::Completion completion) {
    ViewController& outer = of(outermost());
    if (outer.presented_) {
        outer.dismissPresented(animated);
    } else if (outer.presenting_) {
        of(outer.presenting_).dismissPresented(animated);
    }
    if (completion) {
        soon([done = objc::Copied<ui::ViewController::Completion>(completion)] { done(); });
    }
}

/// Takes down what this controller presents, beginning with what that one presents.
void ViewController::dismissPresented(bool animated) {
    const objc::Strong<ui::ViewController> leaving = presented_;
    ViewController& peer = of(leaving);
    if (peer.presented_) {
        peer.dismissPresented(animated);
    }
    peer.beingDismissed_ = true;
    peer.leaveScreen(animated);
    peer.presentation_->leave(animated);
    presented_ = nullptr;
    peer.presenting_ = nullptr;
    peer.presentation_.reset();
    soon([leaving] { of(leaving).beingDismissed_ = false; });
}

ui::PresentationController ViewController::presentationController() { return popover(); }

ui::PopoverPresentationController ViewController::popover() {
    if (!popover_ && style_ == ui::ModalPresentation::popover) {
        popover_ = ui::PopoverPresentationController::make();
    }
    return popover_;
}

ui::ModalPresentation ViewController::phoneStyle() {
    using Style = ui::ModalPresentation;
    if (style_ != Style::popover) {
        return style_;
    }
    const objc::Object delegate = popover().delegate();
    const auto newer =
        objc::selector<"adaptivePresentationStyleForPresentationController:traitCollection:">();
    const auto older = objc::selector<"adaptivePresentationStyleForPresentationController:">();
    Style adapted = Style::automatic; // what a phone makes of a popover, if nobody objects
    if (delegate && delegate.respondsToSelector(newer)) {
        adapted = objc::sendTo<Style>(delegate.raw(), newer, popover(), objc::Object());
    } else if (delegate && delegate.respondsToSelector(older)) {
        adapted = objc::sendTo<Style>(delegate.raw(), older, popover());
    }
    return adapted == Style::none ? Style::popover : adapted;
}

} // namespace desktop
