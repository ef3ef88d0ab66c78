// UIApplication.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/uikit/window.hpp"

namespace ui {

struct Application : objc::Kind<Application, "UIApplication", Responder> {
    using Kind::Kind;

    static Application sharedApplication() { return sendClass<"sharedApplication", Application>(); }
    /// Back to front.
    [[nodiscard]] ns::ArrayOf<Window> windows() const {
        return send<"windows", ns::ArrayOf<Window>>();
    }
    [[nodiscard]] ns::Set connectedScenes() const { return send<"connectedScenes", ns::Set>(); }
    /// Hands the URL to the application that it belongs to. False when there is none.
    bool openUrl(ns::Url url) const { return send<"openURL:", bool>(url); }
    /// As above, and calls the completion, which may be nil, with how it went.
    void openUrl(ns::Url url, ns::Dictionary options,
                 objc::Block<void(bool opened)> completion) const {
        send<"openURL:options:completionHandler:">(url, options, completion);
    }
    [[nodiscard]] bool canOpenUrl(ns::Url url) const { return send<"canOpenURL:", bool>(url); }
    /// Sends the action to the target; nil means the first responder up the chain that has it.
    bool sendAction(SEL action, objc::Object target, objc::Object sender,
                    objc::Object event) const {
        return send<"sendAction:to:from:forEvent:", bool>(action, target, sender, event);
    }
    [[nodiscard]] Window keyWindow() const { return send<"keyWindow", Window>(); }
};

} // namespace ui
