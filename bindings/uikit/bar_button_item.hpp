// UIBarButtonItem: a button of a bar.
#pragma once

#include "bindings/uikit/image.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

/// The platform's numbers.
enum class BarButtonStyle : long { plain = 0, done = 2 };

/// Buttons that the system names and draws; the platform's numbers.
enum class BarButtonSystemItem : long {
    done = 0,
    cancel = 1,
    edit = 2,
    save = 3,
    add = 4,
    flexibleSpace = 5,
    fixedSpace = 6,
    compose = 7,
    reply = 8,
    action = 9,
    organize = 10,
    bookmarks = 11,
    search = 12,
    refresh = 13,
    stop = 14,
    camera = 15,
    trash = 16,
    play = 17,
    pause = 18,
    rewind = 19,
    fastForward = 20,
    undo = 21,
    redo = 22,
    close = 24,
};

struct BarButtonItem : objc::Kind<BarButtonItem, "UIBarButtonItem"> {
    using Kind::Kind;

    /// The target is not retained. The action takes nothing or the item.
    static BarButtonItem withTitle(ns::String title, BarButtonStyle style, objc::Object target,
                                   SEL action) {
        return make<"initWithTitle:style:target:action:">(title, style, target, action);
    }
    static BarButtonItem withImage(Image image, BarButtonStyle style, objc::Object target,
                                   SEL action) {
        return make<"initWithImage:style:target:action:">(image, style, target, action);
    }
    static BarButtonItem withSystemItem(BarButtonSystemItem item, objc::Object target, SEL action) {
        return make<"initWithBarButtonSystemItem:target:action:">(item, target, action);
    }
    /// Shows the view, which the item keeps.
    static BarButtonItem withCustomView(View view) { return make<"initWithCustomView:">(view); }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    void setTitle(ns::String title) const { send<"setTitle:">(title); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
};

inline BarButtonItem ViewController::editButtonItem() const {
    return send<"editButtonItem", BarButtonItem>();
}

} // namespace ui
