// Describing views.
#include "desktop/host/view_node.hpp"

#include "bindings/uikit/font.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string_view>

namespace desktop::host {
namespace {

/// Whether the object has a getter of that name whose result's encoding begins with one of `types`:
/// classes bring these getters each for themselves, and need not mean the same by them.
template <objc::Literal Getter>
bool answers(objc::Object object, std::string_view types) {
    const Method method =
        class_getInstanceMethod(object_getClass(object.raw()), objc::selector<Getter>());
    const char* encoding = method != nullptr ? method_getTypeEncoding(method) : nullptr;
    return encoding != nullptr && types.find(*encoding) != std::string_view::npos;
}

/// The getter's result; nothing when there is no such getter, nil for an object of another kind.
template <objc::Literal Getter, class Kind>
std::optional<Kind> object(objc::Object owner) {
    return answers<Getter>(owner, "@")
               ? std::optional(owner.send<Getter, objc::Object>().template as<Kind>())
               : std::nullopt;
}

std::optional<ns::String> title(ui::View view) {
    const auto current = object<"currentTitle", ns::String>(view);
    return current ? current : object<"title", ns::String>(view);
}

Json toJson(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

Json toJson(CGAffineTransform t) { return {t.a, t.b, t.c, t.d, t.tx, t.ty}; }

Json toJson(ns::String text) { return textToJson(text); }

Json toJson(ui::Font font) {
    return font ? Json{{"name", toJson(font.fontName())}, {"size", font.pointSize()}} : Json();
}

/// "#rrggbbaa"; null for no colour and for one without such components.
Json toJson(ui::Color color) {
    std::array<double, 4> parts{};
    if (!color || !color.getRed(&parts[0], &parts[1], &parts[2], &parts[3])) {
        return nullptr;
    }
    constexpr double brightest = 255;
    std::string text = "#";
    for (const double part : parts) {
        std::array<char, 3> digits{};
        std::snprintf(digits.data(), digits.size(), "%02x",
                      static_cast<unsigned>(std::lround(std::clamp(part, 0.0, 1.0) * brightest)));
        text += digits.data();
    }
    return text;
}

template <objc::Literal Getter, class Kind>
void addObject(Json& node, const char* key, objc::Object owner) {
    if (const auto value = object<Getter, Kind>(owner)) {
        node[key] = toJson(*value);
    }
}

template <objc::Literal Getter>
void addFlag(Json& node, const char* key, objc::Object owner) {
    if (answers<Getter>(owner, "BcC")) {
        node[key] = owner.send<Getter, bool>();
    }
}

template <objc::Literal Getter>
void addCount(Json& node, const char* key, objc::Object owner) {
    if (answers<Getter>(owner, "qQlL")) {
        node[key] = owner.send<Getter, unsigned long>();
    }
}

Json recognizerNode(objc::Object recognizer) {
    const SEL action = GestureRecognizer::of(recognizer).action();
    Json node{{"class", object_getClassName(recognizer.raw())},
              {"action", action != nullptr ? Json(sel_getName(action)) : Json()}};
    if (answers<"minimumPressDuration">(recognizer, "d")) {
        node["minimumPressDuration"] = recognizer.send<"minimumPressDuration", double>();
    }
    addCount<"numberOfTouchesRequired">(node, "touches", recognizer);
    addCount<"numberOfTapsRequired">(node, "taps", recognizer);
    return node;
}

Json recognizers(ui::View view) {
    Json nodes = Json::array();
    for (const ui::GestureRecognizer recognizer : view.gestureRecognizers()) {
        nodes.push_back(recognizerNode(recognizer));
    }
    return nodes;
}

} // namespace

ns::String textOf(ui::View view) { return object<"text", ns::String>(view).value_or(nullptr); }

ns::String titleOf(ui::View view) { return title(view).value_or(nullptr); }

CGRect rectInWindow(ui::View view) { return view.convertRect(view.bounds(), nullptr); }

Json viewNode(Values& values, ui::View view) {
    const CurrentTraits current(View::of(view).traits()); // colours as they are shown
    Json node = values.reference(view);
    node["frame"] = toJson(view.frame());
    node["rect"] = toJson(rectInWindow(view));
    node["alpha"] = view.alpha();
    node["hidden"] = view.isHidden();
    node["tag"] = view.tag();
    node["label"] = toJson(view.accessibilityLabel());
    node["backgroundColor"] = toJson(view.backgroundColor());
    node["style"] = CurrentTraits::get().style == ui::InterfaceStyle::dark ? "dark" : "light";
    node["recognizers"] = recognizers(view);
    addObject<"text", ns::String>(node, "text", view);
    addObject<"placeholder", ns::String>(node, "placeholder", view);
    addObject<"textColor", ui::Color>(node, "textColor", view);
    addObject<"font", ui::Font>(node, "font", view);
    addFlag<"isEnabled">(node, "enabled", view);
    addFlag<"isSelected">(node, "selected", view);
    if (const auto shown = title(view)) {
        node["title"] = toJson(*shown);
    }
    if (const CGAffineTransform transform = view.transform(); transform != CGAffineTransform()) {
        node["transform"] = toJson(transform);
    }
    return node;
}

Json viewTree(Values& values, ui::View view) {
    Json node = viewNode(values, view);
    Json children = Json::array();
    for (const ui::View child : view.subviews()) {
        children.push_back(viewTree(values, child));
    }
    node["children"] = std::move(children);
    return node;
}

} // namespace desktop::host
