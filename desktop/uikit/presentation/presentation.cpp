// Presentations: what lies where, what it covers, how it comes and goes.
#include "desktop/uikit/presentation/presentation.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/presentation/popover_presentation_controller.hpp"
#include "desktop/uikit/presentation/transition.hpp"
#include "desktop/uikit/presentation/transition_view.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

/// What a popover keeps clear of the edges of the safe area.
constexpr double popoverMargin = 10;
constexpr CGSize usualPopover{320, 480};

/// Those that have not been asked to leave, in the order in which they came.
std::vector<Presentation*> presentations;

CGRect inset(CGRect rect, UIEdgeInsets by) {
    return {{rect.origin.x + by.left, rect.origin.y + by.top},
            {std::max(0.0, rect.size.width - by.left - by.right),
             std::max(0.0, rect.size.height - by.top - by.bottom)}};
}

PopoverPlace placeOfPopover(ui::ViewController presented, CGRect bounds) {
    const auto& popover =
        PopoverPresentationController::of(ViewController::of(presented).knownPopover());
    const ui::View source = popover.anchorView();
    const CGRect anchor = source.convertRect(popover.anchor(), nullptr);
    const CGSize wanted = presented.preferredContentSize();
    CGRect room = inset(bounds, ScreenGeometry::current().safeArea);
    room = inset(room, {popoverMargin, popoverMargin, popoverMargin, popoverMargin});
    return popoverPlace(anchor,
                        {wanted.width > 0 ? wanted.width : usualPopover.width,
                         wanted.height > 0 ? wanted.height : usualPopover.height},
                        room, popover.sides());
}

/// Whether whoever is responsible for the popover lets a tap beside it end it.
bool mayBeTappedAway(ui::PresentationController controller) {
    const objc::Object delegate = controller.delegate();
    const auto newer = objc::selector<"presentationControllerShouldDismiss:">();
    const auto older = objc::selector<"popoverPresentationControllerShouldDismissPopover:">();
    for (const SEL question : {newer, older}) {
        if (delegate && delegate.respondsToSelector(question)) {
            return objc::sendTo<bool>(delegate.raw(), question, controller);
        }
    }
    return true;
}

void tellTappedAway(ui::PresentationController controller) {
    const objc::Object delegate = controller.delegate();
    const auto newer = objc::selector<"presentationControllerDidDismiss:">();
    const auto older = objc::selector<"popoverPresentationControllerDidDismissPopover:">();
    for (const SEL notice : {newer, older}) {
        if (delegate && delegate.respondsToSelector(notice)) {
            objc::sendTo(delegate.raw(), notice, controller);
            return;
        }
    }
}

void tapBeside(ui::ViewController presented) {
    if (const auto alert = presented.as<ui::AlertController>(); alert) {
        AlertController::of(alert).cancel();
        return;
    }
    const objc::Strong<ui::PresentationController> popover =
        ViewController::of(presented).knownPopover();
    if (!presented.send<"isModalInPresentation", bool>() && mayBeTappedAway(popover)) {
        presented.presentingViewController().dismiss(true);
        tellTappedAway(popover);
    }
}

} // namespace

Presentation::Presentation(ui::ViewController presenting, ui::ViewController presented)
    : presenting_(presenting), presented_(presented) {
    presentations.push_back(this);
}

Presentation::~Presentation() { std::erase(presentations, this); }

std::vector<ui::ViewController> Presentation::presentedIn(ui::Window window) {
    std::vector<ui::ViewController> presented;
    for (const Presentation* each : presentations) {
        if (window && each->window() == window) {
            presented.push_back(each->presented_);
        }
    }
    return presented;
}

/// Where it is, or will come up.
ui::Window Presentation::window() const {
    return container_ ? container_.window() : presenting_.view().window();
}

Presentation::Look Presentation::lookFor(ui::ViewController presented) {
    if (const auto alert = presented.as<ui::AlertController>(); alert) {
        return alert.preferredStyle() == ui::AlertStyle::alert ? Look::alert : Look::actionSheet;
    }
    if (presented.as<ui::ActivityViewController>()) {
        return Look::sheet; // whatever style it was given, as on the phone
    }
    using Style = ui::ModalPresentation;
    switch (ViewController::of(presented).phoneStyle()) {
    case Style::automatic:
    case Style::pageSheet:
    case Style::formSheet:
        return Look::sheet;
    case Style::popover:
        return Look::popover;
    case Style::fullScreen:
    case Style::currentContext:
        return Look::full;
    default:
        return Look::over;
    }
}

bool Presentation::fillsScreen() const { return look_ == Look::full || look_ == Look::over; }

double Presentation::dimming() const {
    switch (look_) {
    case Look::full:
    case Look::over:
        return 0;
    case Look::popover:
        return 0.1;
    default:
        return 0.2;
    }
}

void Presentation::enter(ui::Window window, bool animated) {
    look_ = lookFor(presented_);
    const ui::View view = presented_.view();
    if (look_ == Look::popover &&
        !PopoverPresentationController::of(ViewController::of(presented_).knownPopover())
             .anchorView()) {
        ns::Exception::with(u"NSGenericException"_ns,
                            u"UIPopoverPresentationController should have a non-nil sourceView or "
                            u"barButtonItem set before the presentation occurs."_ns)
            .raise();
    }
    buildViews(window.bounds(), view);
    TransitionView::of(container_).arrange = [self = weak_from_this()](CGRect bounds) {
        if (const auto presentation = self.lock(); presentation) {
            presentation->place(bounds);
        }
    };
    window.addSubview(container_);
    place(container_.bounds());
    container_.layoutIfNeeded();
    setOffstage(true);
    transition(
        animated, duration, [this] { setOffstage(false); },
        [self = shared_from_this()] { self->cover(); });
}

void Presentation::buildViews(CGRect bounds, ui::View view) {
    using enum ui::ViewAutoresizing;
    container_ = TransitionViewKind::make<"initWithFrame:">(bounds);
    container_.setAutoresizingMask(flexibleWidth | flexibleHeight);
    // What is drawn around the presented view looks as the view does.
    container_.setOverrideUserInterfaceStyle(presented_.overrideUserInterfaceStyle());
    if (!fillsScreen()) {
        View::of(container_).elevate();
    }
    const auto dimming = DimmingViewKind::make<"initWithFrame:">(bounds);
    dimming.setAutoresizingMask(flexibleWidth | flexibleHeight);
    dimming.setBackgroundColor(ui::Color::withWhite(0, this->dimming()));
    if (look_ == Look::popover || look_ == Look::actionSheet) {
        DimmingView::of(dimming).tapped = [presented = presented_] { tapBeside(presented); };
    }
    dimming_ = dimming;
    container_.addSubview(dimming);
    if (look_ == Look::popover) {
        const auto& popover =
            PopoverPresentationController::of(ViewController::of(presented_).knownPopover());
        stage_ = PopoverView::around(view, popover.background());
    } else if (look_ == Look::sheet) {
        stage_ = SheetViewKind::make<"initWithFrame:">(CGRect());
        stage_.setClipsToBounds(true);
        stage_.layer().setCornerRadius(SheetView::cornerRadius);
        stage_.addSubview(view);
    } else {
        stage_ = view;
    }
    container_.addSubview(stage_);
}

void Presentation::place(CGRect bounds) {
    if (offstage_) {
        return; // on its way, and not to be called back
    }
    switch (look_) {
    case Look::full:
    case Look::over:
        stage_.setFrame(bounds);
        break;
    case Look::sheet: {
        const CGRect frame = sheetFrame(bounds, ScreenGeometry::current().safeArea);
        stage_.layer().setCornerRadius(frame.origin.y > 0 ? SheetView::cornerRadius : 0);
        // The lower corners lie below the screen.
        stage_.setFrame(
            {frame.origin, {frame.size.width, frame.size.height + SheetView::cornerRadius}});
        presented_.view().setFrame({{}, frame.size});
        break;
    }
    case Look::popover:
        PopoverView::of(stage_).moveTo(placeOfPopover(presented_, bounds));
        break;
    default:
        stage_.setFrame(AlertController::of(presented_).frameIn(bounds));
    }
}

void Presentation::setOffstage(bool offstage) {
    offstage_ = offstage;
    dimming_.setAlpha(offstage ? 0 : 1);
    const bool fades = look_ == Look::popover || look_ == Look::alert ||
                       presented_.send<"modalTransitionStyle", long>() == crossDissolve;
    if (fades) {
        stage_.setAlpha(offstage ? 0 : 1);
    } else {
        const double height = container_.bounds().size.height;
        stage_.setTransform(offstage ? CGAffineTransform{1, 0, 0, 1, 0, height}
                                     : CGAffineTransform());
    }
}

/// What lies behind a full screen leaves the window.
void Presentation::cover() {
    if (look_ == Look::full && !leaves_ && !covered_) {
        covered_ = presenting_.view();
        coveredParent_ = covered_.superview();
        coveredPlace_ = static_cast<long>(
            coveredParent_.subviews().send<"indexOfObjectIdenticalTo:", unsigned long>(
                static_cast<ui::View>(covered_)));
        covered_.removeFromSuperview();
    }
}

void Presentation::uncover() {
    if (covered_ && coveredParent_) {
        coveredParent_.insertSubview(covered_, coveredPlace_);
    }
    covered_ = nullptr;
    coveredParent_ = nullptr;
}

void Presentation::leave(bool animated) {
    leaves_ = true;
    std::erase(presentations, this);
    if (!container_) {
        return; // it never came
    }
    uncover();
    container_.setUserInteractionEnabled(false);
    TransitionView::of(container_).arrange = nullptr;
    transition(
        animated, duration, [this] { setOffstage(true); },
        [self = shared_from_this(), view = objc::Strong<ui::View>(presented_.view())] {
            self->container_.removeFromSuperview();
            // The controller may be presented again, and looks as before then.
            if (self->stage_ == view && view.superview() == self->container_) {
                view.removeFromSuperview();
                view.setAlpha(1);
                view.setTransform(CGAffineTransform());
            }
        });
}

} // namespace desktop
