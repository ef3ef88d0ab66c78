// Telling whoever hears of motions first.
#include "desktop/uikit/events/shake.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/events/event.hpp"
#include "desktop/uikit/events/first_responder.hpp"

namespace desktop {
namespace {

ui::Responder receiver() {
    const ui::Responder first = first_responder::current();
    return first ? first : ui::Responder(Application::shared().keyWindow());
}

template <objc::Literal Message>
void tell() {
    const objc::Strong<ui::Responder> kept = receiver();
    kept.send<Message>(Event::shake, Event::withShake(Clock::shared().now()));
}

} // namespace

void shakePhone() {
    if (Foreground::shared().hasApplication()) {
        const objc::Pool pool;
        tell<"motionBegan:withEvent:">();
        tell<"motionEnded:withEvent:">();
    }
}

} // namespace desktop
