// Commands that type, and that choose from the edit menu.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "desktop/host/half_pairs.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"
#include "desktop/uikit/menus/menu_controller.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace desktop::host {
namespace {

void demand(bool wasTaken) {
    if (!wasTaken) {
        throw RequestError("nothing that takes text has the focus");
    }
}

ns::String textArgument(const Json& value) {
    if (!value.is_string()) {
        throw RequestError("expected a text, got " + written(value));
    }
    return toText(value.get_ref<const std::string&>());
}

/// The text as it is being composed, step by step: ["n", "ni"].
std::vector<ns::String> stepsArgument(const Json& request) {
    std::vector<ns::String> steps;
    if (argument(request, "compose") != nullptr) {
        std::ranges::transform(listArgument(request, "compose"), std::back_inserter(steps),
                               &textArgument);
    }
    return steps;
}

TextMovement movementArgument(const Json& request) {
    using enum TextMovement;
    constexpr auto names = std::to_array<std::pair<std::string_view, TextMovement>>({
        {"left", left},
        {"right", right},
        {"up", up},
        {"down", down},
        {"wordLeft", wordLeft},
        {"wordRight", wordRight},
        {"lineStart", lineStart},
        {"lineEnd", lineEnd},
        {"start", start},
        {"end", end},
    });
    const std::string& name = stringArgument(request, "to");
    const auto* found = std::ranges::find(names, name, &decltype(names)::value_type::first);
    if (found == names.end()) {
        throw RequestError("unknown place: " + name);
    }
    return found->second;
}

/// What a key combination does to the text, as the edit menu does.
struct Edit {
    std::string_view name;
    bool (*perform)();
};

template <objc::Literal Action>
bool performs() {
    return keyboard_input::perform(objc::selector<Action>());
}

const Edit& editNamed(const std::string& name) {
    static constexpr auto edits = std::to_array<Edit>({
        {"cut", &performs<"cut:">},
        {"copy", &performs<"copy:">},
        {"paste", &performs<"paste:">},
        {"selectAll", &performs<"selectAll:">},
        {"undo", &keyboard_input::undo},
        {"redo", &keyboard_input::redo},
    });
    const auto* found = std::ranges::find(edits, name, &Edit::name);
    if (found == edits.end()) {
        throw RequestError("unknown key: " + name);
    }
    return *found;
}

void perform(const Edit& edit) {
    if (!edit.perform()) {
        throw RequestError("there is nothing to " + std::string(edit.name) + " now");
    }
}

Json titles(const MenuController& menu) {
    Json list = Json::array();
    for (const auto& item : menu.shownItems()) {
        list.push_back(withHalfPairs(item.title()));
    }
    return list;
}

} // namespace

Json type(Session&, const Json& request) {
    const ns::String text = textArgument(anyArgument(request, "text"));
    for (const ns::String step : stepsArgument(request)) {
        demand(keyboard_input::setMarkedText(step, {step.length(), 0}));
    }
    const bool isWhole = flagArgument(request, "whole");
    demand(isWhole ? keyboard_input::insertText(text) : keyboard_input::typeText(text));
    return nullptr;
}

Json key(Session&, const Json& request) {
    const std::string& name = stringArgument(request, "name");
    if (name == "return") {
        demand(keyboard_input::pressReturn());
    } else if (name == "delete") {
        const bool isFar = argument(request, "to") != nullptr;
        demand(keyboard_input::erase(isFar ? movementArgument(request) : TextMovement::left));
    } else if (name == "move") {
        const TextMovement movement = movementArgument(request);
        demand(keyboard_input::move(movement, flagArgument(request, "select")));
    } else if (name == "hide") {
        demand(keyboard_input::hide());
    } else {
        perform(editNamed(name));
    }
    return nullptr;
}

Json keyboard(Session&, const Json& request) {
    Keyboard& keyboard = Keyboard::shared();
    if (argument(request, "hardware") != nullptr) {
        keyboard.setHardware(flagArgument(request, "hardware"));
    }
    return {{"hardware", keyboard.hasHardware()}, {"height", keyboard.height()}};
}

/// Shows the menu, if it is not shown, for as long as it takes.
Json menu(Session&, const Json& request) {
    const objc::Strong<ui::Responder> first = first_responder::current();
    if (!first) {
        throw RequestError("nothing has the focus");
    }
    const bool chooses = argument(request, "choose") != nullptr;
    const std::string wanted = chooses ? stringArgument(request, "choose") : "";
    const auto shared = ui::MenuController::sharedMenuController();
    MenuController& menu = MenuController::of(shared);
    const bool wasVisible = shared.isMenuVisible();
    if (!wasVisible) {
        const auto view = first.as<ui::View>();
        shared.showMenu(view, view.bounds());
    }
    Json offered = titles(menu);
    const auto items = menu.shownItems();
    const auto chosen = std::ranges::find_if(
        items, [&](const auto& item) { return chooses && withHalfPairs(item.title()) == wanted; });
    if (chosen != items.end()) {
        menu.choose(*chosen);
    } else if (!wasVisible) {
        shared.hideMenu();
    }
    if (chooses && chosen == items.end()) {
        throw RequestError("no such item: " + wanted + "; offered: " + written(offered));
    }
    return offered;
}

} // namespace desktop::host
