// Context menus.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/host/view_argument.hpp"

#include "bindings/uikit/context_menu_interaction.hpp"
#include "desktop/uikit/contextmenus/context_menu_interaction.hpp"
#include "desktop/uikit/contextmenus/context_menu_view.hpp"
#include "desktop/uikit/values/image.hpp"

namespace desktop::host {
namespace {

/// The interaction of the view, or of the nearest one that it lies in; nil without one.
ui::ContextMenuInteraction interactionOf(ui::View view) {
    for (; view; view = view.superview()) {
        for (const objc::Object each : view.interactions()) {
            if (const auto found = each.as<ui::ContextMenuInteraction>(); found) {
                return found;
            }
        }
    }
    return nullptr;
}

void openMenu(ui::View view) {
    const auto interaction = interactionOf(view);
    if (!interaction) {
        throw RequestError("the view has no context menu");
    }
    const CGRect bounds = interaction.view().bounds();
    if (!ContextMenuInteraction::of(interaction)
             .show({bounds.size.width / 2, bounds.size.height / 2})) {
        throw RequestError("there is no menu for the view now");
    }
}

Json menuNode(ui::Menu menu) {
    Json items = Json::array();
    for (const ui::MenuElement element : menu.children()) {
        const std::string symbol = UIImage::symbolNameOf(element.image());
        items.push_back({{"title", textToJson(element.title())},
                         {"symbol", symbol.empty() ? Json() : Json(symbol)}});
    }
    return {{"title", textToJson(menu.title())}, {"items", std::move(items)}};
}

ui::MenuElement elementTitled(ui::Menu menu, const std::string& title) {
    for (const ui::MenuElement element : menu.children()) {
        if (element.title() && withHalfPairs(element.title()) == title) {
            return element;
        }
    }
    throw RequestError("the menu has no item " + title);
}

} // namespace

Json context(Session& session, const Json& request) {
    if (argument(request, "on") != nullptr || argument(request, "at") != nullptr) {
        openMenu(viewArgument(session, request));
    }
    const objc::Strong<ui::Menu> menu = ContextMenuView::shown();
    const Json* choice = argument(request, "choose");
    if (!menu) {
        if (choice != nullptr) {
            throw RequestError("there is no context menu");
        }
        return nullptr;
    }
    Json node = menuNode(menu);
    if (choice != nullptr && choice->is_null()) {
        ContextMenuView::hide();
    } else if (choice != nullptr) {
        ContextMenuView::choose(elementTitled(menu, stringArgument(request, "choose")));
    }
    return node;
}

} // namespace desktop::host
