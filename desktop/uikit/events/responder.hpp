// UIResponder: a link of the chain that events and actions travel along.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/responder.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class Responder : public PlatformClass<Responder, ui::Responder> {
public:
    static std::vector<objc::MethodRow> methods();

    ~Responder();

private:
    /// What a responder does not handle is the next one's.
    template <objc::Literal Message>
    void pass(ns::Set touches, ui::Event event) {
        const objc::Strong<ui::Responder> next = self().nextResponder(); // its handler may drop it
        next.template send<Message>(touches, event);
    }
    template <objc::Literal Message>
    void passMotion(long motion, ui::Event event) {
        const objc::Strong<ui::Responder> next = self().nextResponder();
        next.template send<Message>(motion, event);
    }
    [[nodiscard]] ui::Responder nextResponder() const { return nullptr; }
    [[nodiscard]] bool canBecomeFirstResponder() const { return false; }
    [[nodiscard]] bool canResignFirstResponder() const { return true; }
    [[nodiscard]] bool isFirstResponder() const;
    bool becomeFirstResponder();
    bool resignFirstResponder();
    /// By default a responder can do what it has a method for.
    [[nodiscard]] bool canPerformAction(SEL action, objc::Object) const {
        return self().respondsToSelector(action);
    }
    [[nodiscard]] ui::Responder targetForAction(SEL action, objc::Object sender) const;
};

} // namespace desktop
