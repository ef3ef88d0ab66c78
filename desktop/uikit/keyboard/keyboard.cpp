// Showing and hiding the keyboard.
#include "desktop/uikit/keyboard/keyboard.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/keyboard/keyboard_view.hpp"
#include "desktop/uikit/text/text_effects_window.hpp"
#include "desktop/uikit/text/text_input.hpp"
#include "desktop/uikit/values/geometry_values.hpp"

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

/// A view that the responder has under that name, or nil.
template <objc::Literal Name>
ui::View viewOf(ui::Responder responder) {
    return responder && responder.respondsToSelector(objc::selector<Name>())
               ? responder.send<Name, ui::View>()
               : nullptr;
}

bool takesText(ui::Responder responder) {
    if (const TextInput* input = TextInput::find(responder); input != nullptr) {
        return input->isEditable();
    }
    return responder && responder.respondsToSelector(objc::selector<"insertText:">());
}

ns::Dictionary userInfo(CGRect begin, CGRect end) {
    constexpr long long curve = 7; // the keyboard's own
    const auto info = ns::MutableDictionary::make();
    info.set(valueWith(begin), u"UIKeyboardFrameBeginUserInfoKey"_ns);
    info.set(valueWith(end), u"UIKeyboardFrameEndUserInfoKey"_ns);
    info.set(ns::Number::from(Keyboard::duration), u"UIKeyboardAnimationDurationUserInfoKey"_ns);
    info.set(ns::Number::from(curve), u"UIKeyboardAnimationCurveUserInfoKey"_ns);
    info.set(ns::Number::from(true), u"UIKeyboardIsLocalUserInfoKey"_ns);
    return info;
}

void post(ns::String name, ns::Dictionary info) {
    ns::NotificationCenter::defaultCenter().post(name, nullptr, info);
}

} // namespace

Keyboard& Keyboard::shared() {
    static auto* keyboard = new Keyboard; // its views live until the process ends
    return *keyboard;
}

double Keyboard::height() const { return isShown_ ? container_.bounds().size.height : 0; }

void Keyboard::serve(ui::Responder responder) {
    if (handovers_ > 0) {
        return;
    }
    if (takesText(responder)) {
        show(responder);
    } else if (isShown_) {
        hide();
    }
}

void Keyboard::fill(ui::Responder responder) {
    const ui::View own = viewOf<"inputView">(responder);
    content_.removeFromSuperview();
    accessory_.removeFromSuperview();
    accessory_ = viewOf<"inputAccessoryView">(responder);
    const double width = ui::Screen::mainScreen().bounds().size.width;
    if (!own && !hasHardware_) {
        const ScreenGeometry& screen = ScreenGeometry::current();
        keys_.setFrame(
            {{}, {width, keyboardHeight(screen.isLandscape(), screen.safeArea.bottom > 0)}});
        const bool isTyped = responder.respondsToSelector(objc::selector<"returnKeyType">());
        KeyboardView::of(keys_).reset(isTyped ? responder.send<"returnKeyType", long>() : 0);
    }
    content_ = own || hasHardware_ ? own : static_cast<ui::View>(keys_);
    const double above = accessory_ ? accessory_.frame().size.height : 0;
    if (accessory_) {
        accessory_.setFrame({{}, {width, above}});
        container_.addSubview(accessory_);
    }
    if (content_) {
        content_.setFrame({{0, above}, {width, content_.frame().size.height}});
        container_.addSubview(content_);
    }
}

void Keyboard::show(ui::Responder responder) {
    if (hasHardware_ && !viewOf<"inputView">(responder) &&
        !viewOf<"inputAccessoryView">(responder)) {
        if (isShown_) {
            hide();
        }
        return;
    }
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    if (!container_) {
        container_ = ui::View::withFrame({{0, screen.height}, {screen.width, 0}});
        keys_ = KeyboardViewKind::make<"initWithFrame:">(CGRect());
    }
    fill(responder);
    const double height = accessory_.frame().size.height + content_.frame().size.height;
    const CGRect frame{{0, screen.height - height}, {screen.width, height}};
    if (isShown_ && frame == container_.frame()) {
        return;
    }
    TextEffectsWindow::shared().addSubview(container_);
    if (!isShown_) {
        container_.setFrame({{0, screen.height}, frame.size});
    }
    isShown_ = true;
    moveTo(frame, u"UIKeyboardWillShowNotification"_ns, u"UIKeyboardDidShowNotification"_ns);
}

void Keyboard::setHardware(bool has) {
    if (std::exchange(hasHardware_, has) == has) {
        return;
    }
    if (const ui::Responder first = first_responder::current(); takesText(first)) {
        show(first);
    }
}

void Keyboard::fitScreen() {
    if (isShown_) {
        show(first_responder::current());
    }
}

void Keyboard::hide() {
    isShown_ = false;
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    moveTo({{0, screen.height}, container_.frame().size}, u"UIKeyboardWillHideNotification"_ns,
           u"UIKeyboardDidHideNotification"_ns);
}

void Keyboard::dismiss() {
    if (isShown_) {
        first_responder::current().resignFirstResponder();
    }
}

void Keyboard::follow(double y) {
    if (!isShown_) {
        return;
    }
    CGRect frame = container_.frame();
    const double screen = ui::Screen::mainScreen().bounds().size.height;
    frame.origin.y = std::max(screen - frame.size.height, std::min(y, screen));
    container_.setFrame(frame);
}

void Keyboard::letGo(double velocity) {
    CGRect place = container_.frame();
    const double top = ui::Screen::mainScreen().bounds().size.height - place.size.height;
    const double moved = std::exchange(place.origin.y, top) - top;
    if (!isShown_ || moved <= 0) {
        return;
    }
    if (velocity > 0 || (velocity == 0 && moved > place.size.height / 2)) {
        dismiss();
    }
    if (isShown_) { // or was not given leave to go
        ui::View::animate(duration,
                          ui::View::Changes::from([this, place] { container_.setFrame(place); }));
    }
}

void Keyboard::moveTo(CGRect frame, ns::String will, ns::String did) {
    const objc::Strong info = userInfo(container_.frame(), frame);
    Clock::shared().cancel(arrival_);
    ui::View::animate(duration,
                      ui::View::Changes::from([this, frame] { container_.setFrame(frame); }));
    arrival_ = Clock::shared().at(Clock::shared().now() + duration, [this, info, did] {
        const objc::Pool pool;
        if (!isShown_) {
            container_.removeFromSuperview();
        }
        post(u"UIKeyboardDidChangeFrameNotification"_ns, info);
        post(did, info);
    });
    post(u"UIKeyboardWillChangeFrameNotification"_ns, info);
    post(will, info);
}

} // namespace desktop
