// Matching views against conditions.
#include "desktop/host/view_search.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/host/view_node.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/uikit.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace desktop::host {
namespace {

bool isOfClass(ui::View view, const Json& wanted) {
    const Class cls = objc_lookUpClass(wanted.get_ref<const std::string&>().c_str());
    return cls != nullptr && view.isKindOfClass(cls);
}

bool hasText(ns::String text, const Json& wanted) {
    return text && withHalfPairs(text) == wanted.get_ref<const std::string&>();
}

bool intersect(CGRect one, CGRect other) {
    const auto overlap = [](double a, double lengthOfA, double b, double lengthOfB) {
        return lengthOfA > 0 && lengthOfB > 0 && a < b + lengthOfB && b < a + lengthOfA;
    };
    return overlap(one.origin.x, one.size.width, other.origin.x, other.size.width) &&
           overlap(one.origin.y, one.size.height, other.origin.y, other.size.height);
}

bool isVisible(ui::View view) {
    for (ui::View ancestor = view; ancestor; ancestor = ancestor.superview()) {
        if (ancestor.isHidden() || ancestor.alpha() <= 0) {
            return false;
        }
    }
    CGRect rect = rectInWindow(view);
    const CGPoint window = view.window().frame().origin;
    rect.origin = {rect.origin.x + window.x, rect.origin.y + window.y};
    return intersect(rect, ui::Screen::mainScreen().bounds());
}

struct Condition {
    std::string_view name;
    bool (*accepts)(const Json& wanted);
    bool (*holds)(ui::View view, const Json& wanted);
};

bool isString(const Json& wanted) { return wanted.is_string(); }

constexpr std::array<Condition, 6> conditions{{
    {"class", &isString, &isOfClass},
    {"text", &isString, [](ui::View v, const Json& w) { return hasText(textOf(v), w); }},
    {"title", &isString, [](ui::View v, const Json& w) { return hasText(titleOf(v), w); }},
    {"label", &isString,
     [](ui::View v, const Json& w) { return hasText(v.accessibilityLabel(), w); }},
    {"tag", [](const Json& wanted) { return wanted.is_number_integer(); },
     [](ui::View v, const Json& w) { return w == v.tag(); }},
    {"visible", [](const Json& wanted) { return wanted.is_boolean(); },
     [](ui::View v, const Json& w) { return w == isVisible(v); }},
}};

struct Wanted {
    const Condition* condition;
    const Json* value;
};

std::vector<Wanted> read(const Json& where) {
    if (!where.is_object()) {
        throw RequestError("conditions must be an object, not " + written(where));
    }
    std::vector<Wanted> wanted;
    for (const auto& [name, value] : where.items()) {
        const auto* condition = std::ranges::find(conditions, name, &Condition::name);
        if (condition == conditions.end()) {
            throw RequestError("no such condition: " + name);
        }
        if (!condition->accepts(value)) {
            throw RequestError("condition " + name + " cannot be " + written(value));
        }
        wanted.push_back({condition, &value});
    }
    return wanted;
}

void search(ui::View view, const std::vector<Wanted>& wanted, std::vector<ui::View>& found) {
    if (std::ranges::all_of(
            wanted, [view](const Wanted& one) { return one.condition->holds(view, *one.value); })) {
        found.push_back(view);
    }
    for (const ui::View child : view.subviews()) {
        search(child, wanted, found);
    }
}

bool contains(CGRect rect, CGPoint point) {
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
           point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

/// The same below one view; the point is in its coordinates.
ui::View seenIn(ui::View view, CGPoint point) {
    const bool isInside = contains(view.bounds(), point);
    if (view.isHidden() || view.alpha() <= 0 || (!isInside && view.send<"clipsToBounds", bool>())) {
        return nullptr;
    }
    ui::View seen = isInside ? view : nullptr;
    for (const ui::View child : view.subviews()) { // back to front
        if (const ui::View inner = seenIn(child, view.convertPoint(point, child)); inner) {
            seen = inner;
        }
    }
    return seen;
}

} // namespace

Json findNodes(Values& values, const Json& where) {
    const std::vector<Wanted> wanted = read(where);
    uikit::layoutWindows();
    std::vector<ui::View> found;
    for (const ui::Window window : ui::Application::sharedApplication().windows()) {
        search(window, wanted, found);
    }
    Json nodes = Json::array();
    for (const ui::View view : found) {
        nodes.push_back(viewNode(values, view));
    }
    return nodes;
}

ui::View viewSeenAt(CGPoint screenPoint) {
    ui::View seen;
    for (const ui::Window window : ui::Application::sharedApplication().windows()) {
        if (const ui::View inner = seenIn(window, intoWindow(window, screenPoint)); inner) {
            seen = inner;
        }
    }
    return seen;
}

} // namespace desktop::host
