// UIContextualAction: a button that comes up when a row is swiped.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

/// The platform's numbers.
enum class ContextualActionStyle : long { normal = 0, destructive = 1 };

struct ContextualAction : objc::Kind<ContextualAction, "UIContextualAction"> {
    using Kind::Kind;
    using Completion = objc::Block<void(bool performed)>;
    /// Calls the completion when it has done its work.
    using Handler = objc::Block<void(ContextualAction, View, Completion)>;

    static ContextualAction with(ContextualActionStyle style, ns::String title, Handler handler) {
        return sendClass<"contextualActionWithStyle:title:handler:", ContextualAction>(style, title,
                                                                                       handler);
    }
};

} // namespace ui
