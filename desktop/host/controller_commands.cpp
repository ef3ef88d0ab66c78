// Commands about the controllers that are shown: which they are, and alerts.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/presentation/presentation.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace desktop::host {
namespace {

using Controllers = std::vector<ui::ViewController>;

/// A controller and what is pushed in it, from the back to the front.
void collect(ui::ViewController controller, Controllers& shown) {
    if (!controller) {
        return;
    }
    shown.push_back(controller);
    if (const auto navigation = controller.as<ui::NavigationController>(); navigation) {
        for (const ui::ViewController pushed : navigation.viewControllers()) {
            collect(pushed, shown);
        }
    }
}

/// The window's own controller and what anybody presents in it, from the back to the front.
Controllers shownIn(ui::Window window) {
    Controllers shown;
    collect(window.rootViewController(), shown);
    for (const ui::ViewController presented : Presentation::presentedIn(window)) {
        collect(presented, shown);
    }
    return shown;
}

ui::AlertController topmost(const Controllers& shown) {
    return shown.empty() ? ui::AlertController() : shown.back().as<ui::AlertController>();
}

ui::AlertController frontAlertOf(const Controllers& shown) {
    const auto isAlert = [](ui::ViewController each) { return each.as<ui::AlertController>(); };
    const auto found = std::find_if(shown.rbegin(), shown.rend(), isAlert);
    return found == shown.rend() ? ui::AlertController() : found->as<ui::AlertController>();
}

/// The alert of the front-most window that shows one; those that nothing covers come first.
ui::AlertController frontAlert() {
    const auto windows = ui::Application::sharedApplication().windows();
    for (const auto& alertOf : {&topmost, &frontAlertOf}) {
        for (unsigned long index = windows.count(); index > 0; --index) {
            if (const auto alert = alertOf(shownIn(windows.at(index - 1))); alert) {
                return alert;
            }
        }
    }
    return nullptr;
}

Json alertNode(ui::AlertController alert) {
    constexpr std::array actionStyles{"default", "cancel", "destructive"};
    Json fields = Json::array();
    for (const ui::TextField field : alert.textFields()) {
        fields.push_back(
            {{"placeholder", textToJson(field.placeholder())}, {"text", textToJson(field.text())}});
    }
    Json actions = Json::array();
    for (const ui::AlertAction action : alert.actions()) {
        actions.push_back({{"title", textToJson(action.title())},
                           {"style", actionStyles.at(static_cast<std::size_t>(action.style()))}});
    }
    return {{"style", alert.preferredStyle() == ui::AlertStyle::alert ? "alert" : "actionSheet"},
            {"title", textToJson(alert.title())},
            {"message", textToJson(alert.message())},
            {"fields", std::move(fields)},
            {"actions", std::move(actions)}};
}

/// Puts the texts into the alert's fields, one after the other, as if they were typed.
void fill(ui::AlertController alert, const Json& texts) {
    const auto fields = alert.textFields();
    if (texts.size() > fields.count()) {
        throw RequestError("the alert has " + std::to_string(fields.count()) + " fields");
    }
    for (const Json& text : texts) {
        if (!text.is_string()) {
            throw RequestError("\"fields\" must be texts");
        }
    }
    for (unsigned long index = 0; index < texts.size(); ++index) {
        const auto field = fields.at(index).assume<ui::TextField>();
        field.setText(toText(texts[index].get_ref<const std::string&>()));
        field.sendActions(ui::ControlEvents::editingChanged);
    }
}

ui::AlertAction actionTitled(ui::AlertController alert, const std::string& title) {
    for (const ui::AlertAction action : alert.actions()) {
        if (action.title() && withHalfPairs(action.title()) == title) {
            return action;
        }
    }
    throw RequestError("the alert has no action " + title);
}

} // namespace

Json alert(Session&, const Json& request) {
    const objc::Strong<ui::AlertController> front = frontAlert();
    const Json* fields = argument(request, "fields");
    const bool chooses = argument(request, "choose") != nullptr;
    if (!front) {
        if (chooses || fields != nullptr) {
            throw RequestError("there is no alert");
        }
        return nullptr;
    }
    const auto chosen =
        chooses ? actionTitled(front, stringArgument(request, "choose")) : ui::AlertAction();
    if (fields != nullptr) {
        fill(front, listArgument(request, "fields"));
    }
    if (chosen && !chosen.isEnabled()) {
        throw RequestError("the action is disabled");
    }
    Json node = alertNode(front);
    if (chosen) {
        AlertController::of(front).choose(chosen);
    }
    return node;
}

Json screens(Session&, const Json&) {
    const ui::Application application = ui::Application::sharedApplication();
    const ui::Window key = application.keyWindow();
    Json names = Json::array();
    for (const ui::ViewController controller : shownIn(key)) {
        names.push_back(object_getClassName(controller.raw()));
    }
    return names;
}

} // namespace desktop::host
