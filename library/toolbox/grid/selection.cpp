// The picked tiles, their colours and their tokens.
#include "library/toolbox/grid/selection.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "library/common/animated.hpp"

namespace wentra::toolbox {

using namespace ns::literals;

namespace {

ui::Color colourOf(PickedBy gesture) {
    constexpr double tapAlpha = 0.25;
    constexpr double slideAlpha = 0.8;
    return gesture == PickedBy::tap
               ? ui::Color::withRed(0, 0, 1, tapAlpha)
               : ui::Color::withRed(173 / 255.0, 216 / 255.0, 230 / 255.0, slideAlpha);
}

} // namespace

void Selection::begin() {
    paths_ = ns::MutableSet::make();
    tokens_ = ns::MutableArray::make();
}

std::optional<long> Selection::outside(long first, long last) const {
    const ns::Enumerator paths = paths_.objects();
    while (const objc::Object path = paths.next()) {
        const long row = path.assume<ns::IndexPath>().item();
        if (row < first || row > last) {
            return row;
        }
    }
    return std::nullopt;
}

ns::String Selection::pickedOrCopied() const {
    const ns::String text = tokens_.count() > 0 ? tokens_.componentsJoined(u""_ns)
                                                : ui::Pasteboard::generalPasteboard().string();
    return text ? text : u""_ns;
}

void Selection::pick(ns::IndexPath path, PickedBy gesture) {
    const ns::String token = tiles_.tokenAt(path);
    if (!token) {
        return;
    }
    tiles_.colour(path, colourOf(gesture));
    lastToken_ = token;
    tokens_.add(token);
    paths_.add(path);
}

void Selection::unpick(ns::IndexPath path) const {
    if (!path) {
        return;
    }
    tiles_.colour(path, ui::Color::white());
    if (const ns::String token = tiles_.tokenAt(path); token) {
        tokens_.remove(token);
    }
    paths_.remove(path);
}

void Selection::unpickAll(ns::Array paths) const {
    for (const objc::Object path : paths) {
        tiles_.colour(path.assume<ns::IndexPath>(), ui::Color::white());
    }
    const auto unpicked = ns::Set::withArray(paths);
    const ns::Array picked = paths_.allObjects();
    paths_.removeAll();
    for (const objc::Object path : picked) {
        if (!unpicked.contains(path)) {
            paths_.add(path); // a tile of an earlier text
        }
    }
}

void Selection::clear() const {
    const ns::Array paths = paths_.allObjects();
    for (const objc::Object path : paths) {
        tiles_.view().deselectItem(path.assume<ns::IndexPath>(), !animated);
    }
    forgetTokens();
    unpickAll(paths);
}

} // namespace wentra::toolbox
