// Alerts: their content, and what a choice does.
#include "desktop/uikit/alerts/alert_controller.hpp"

#include "bindings/foundation/exception.hpp"
#include "desktop/new_object.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/alerts/alert_action.hpp"
#include "desktop/uikit/alerts/alert_view.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

[[noreturn]] void refuse(ns::String reason) {
    ns::Exception::with(u"NSInvalidArgumentException"_ns, reason).raise();
}

bool isCancel(ui::AlertAction action) { return action.style() == ui::AlertActionStyle::cancel; }

} // namespace

std::vector<objc::MethodRow> AlertController::methods() {
    return {
        objc::classMethod<"alertControllerWithTitle:message:preferredStyle:",
                          &AlertController::with>(),
        objc::method<"loadView", &AlertController::loadView>(),
        objc::method<"viewDidAppear:", &AlertController::viewDidAppear>(),
        objc::method<"keyboardWillMove:", &AlertController::keyboardWillMove>(),
        objc::method<"setTitle:", &AlertController::setTitle>(),
        objc::property<"message", &AlertController::message_, &AlertController::contentChanged>(),
        objc::method<"preferredStyle", &AlertController::style_>(),
        objc::method<"addAction:", &AlertController::addAction>(),
        objc::method<"actions", &AlertController::actions>(),
        objc::property<"preferredAction", &AlertController::preferred_,
                       &AlertController::contentChanged>(),
        objc::method<"addTextFieldWithConfigurationHandler:", &AlertController::addTextField>(),
        objc::method<"textFields", &AlertController::textFields>(),
    };
}

ui::AlertController AlertController::with(Class cls, ns::String title, ns::String message,
                                          ui::AlertStyle style) {
    const auto alert = newObject<ui::AlertController>(cls);
    alert.setTitle(title);
    of(alert).message_ = message;
    of(alert).style_ = style;
    return alert;
}

AlertController::~AlertController() {
    ns::NotificationCenter::defaultCenter().removeObserver(self());
    for (const auto& action : actions_) {
        AlertAction::of(action).changed = nullptr;
    }
}

void AlertController::loadView() {
    self().setView(AlertView::showing(self()));
    ns::NotificationCenter::defaultCenter().addObserver(
        self(), objc::selector<"keyboardWillMove:">(), u"UIKeyboardWillChangeFrameNotification"_ns,
        nullptr);
}

void AlertController::keyboardWillMove(ns::Notification) {
    const objc::Strong<ui::View> superview = self().view().superview();
    superview.setNeedsLayout();
    ui::View::animate(Keyboard::duration,
                      ui::View::Changes::from([superview] { superview.layoutIfNeeded(); }));
}

void AlertController::viewDidAppear(bool animated) {
    super<"viewDidAppear:">(animated);
    constexpr auto focus = objc::selector<"becomeFirstResponder">;
    if (!fields_.empty() && fields_.front().respondsToSelector(focus())) {
        fields_.front().send<"becomeFirstResponder", bool>();
    }
}

void AlertController::setTitle(ns::String title) {
    super<"setTitle:">(title);
    contentChanged();
}

void AlertController::addAction(ui::AlertAction action) {
    if (!action) {
        refuse(u"an alert's action must not be nil"_ns);
    }
    if (isCancel(action) && std::ranges::any_of(actions_, isCancel)) {
        refuse(u"UIAlertController can only have one action with a style of "
               u"UIAlertActionStyleCancel"_ns);
    }
    actions_.emplace_back(action);
    AlertAction::of(action).changed = [this] { contentChanged(); };
    contentChanged();
}

ns::Array AlertController::actions() const {
    const auto array = ns::MutableArray::make();
    std::ranges::for_each(actions_, [array](ui::AlertAction action) { array.add(action); });
    return array;
}

void AlertController::addTextField(ui::AlertController::Configuration configuration) {
    if (style_ != ui::AlertStyle::alert) {
        refuse(u"Text fields can only be added to an alert controller of style "
               u"UIAlertControllerStyleAlert"_ns);
    }
    const auto field = ui::TextField::withFrame({});
    fields_.emplace_back(field);
    field.setFont(ui::Font::system(AlertView::messageSize));
    if (configuration) {
        configuration(field);
    }
    contentChanged();
}

ns::Array AlertController::textFields() const {
    if (fields_.empty()) {
        return nullptr;
    }
    const auto array = ns::MutableArray::make();
    std::ranges::for_each(fields_, [array](ui::TextField field) { array.add(field); });
    return array;
}

ui::AlertAction AlertController::emphasised() const {
    if (preferred_ || style_ == ui::AlertStyle::actionSheet) {
        return preferred_;
    }
    const auto cancel = std::ranges::find_if(actions_, isCancel);
    if (cancel != actions_.end()) {
        return *cancel;
    }
    constexpr std::size_t alone = 1;
    return actions_.size() == alone ? static_cast<ui::AlertAction>(actions_.front())
                                    : ui::AlertAction();
}

void AlertController::contentChanged() {
    if (self().isViewLoaded()) {
        AlertView::of(self().view()).rebuild();
        self().view().superview().setNeedsLayout();
    }
}

CGRect AlertController::frameIn(CGRect bounds) {
    const UIEdgeInsets safe = ScreenGeometry::current().safeArea;
    const double covered = std::max(safe.bottom, Keyboard::shared().height());
    const CGSize room{bounds.size.width, bounds.size.height - safe.top - covered};
    const CGSize size = AlertView::of(self().view()).sizeIn(room);
    const double left = (bounds.size.width - size.width) / 2;
    if (style_ == ui::AlertStyle::alert) {
        const double bottom = bounds.size.height - Keyboard::shared().height();
        return {{left, std::max(safe.top, (bottom - size.height) / 2)}, size};
    }
    const double margin = std::max(safe.bottom, AlertLayout::sheetGap);
    return {{left, bounds.size.height - margin - size.height}, size};
}

void AlertController::choose(ui::AlertAction action) {
    if (!action.isEnabled()) {
        return;
    }
    const auto perform = [kept = objc::Strong<ui::AlertAction>(action)] {
        AlertAction::of(kept).perform();
    };
    if (const ui::ViewController presenting = self().presentingViewController(); presenting) {
        presenting.dismiss(true);
        MainQueue::shared().add(perform); // after the alert has gone
    } else {
        perform();
    }
}

void AlertController::cancel() {
    if (const auto found = std::ranges::find_if(actions_, isCancel); found != actions_.end()) {
        choose(*found);
    }
}

} // namespace desktop
