// Actions as the application made them.
#include "desktop/uikit/lists/contextual_action.hpp"

#include "desktop/new_object.hpp"

namespace desktop {

std::vector<objc::MethodRow> ContextualAction::methods() {
    using Self = ContextualAction;
    return {
        objc::classMethod<"contextualActionWithStyle:title:handler:", &Self::with>(),
        objc::method<"style", &Self::style_>(),
        objc::method<"handler", &Self::handler>(),
        objc::property<"title", &Self::title, &Self::setTitle>(),
        objc::property<"image", &Self::image_>(),
        objc::property<"backgroundColor", &Self::backgroundColor, &Self::setBackgroundColor>(),
    };
}

ui::ContextualAction ContextualAction::with(Class cls, ui::ContextualActionStyle style,
                                            ns::String title,
                                            ui::ContextualAction::Handler handler) {
    const auto action = newObject<ui::ContextualAction>(cls);
    ContextualAction& peer = of(action);
    peer.style_ = style;
    peer.title_ = title;
    peer.handler_ = handler;
    return action;
}

ui::Color ContextualAction::backgroundColor() const {
    if (color_) {
        return color_;
    }
    return style_ == ui::ContextualActionStyle::destructive ? ui::Color::named("systemRedColor")
                                                            : ui::Color::named("systemGrayColor");
}

void ContextualAction::perform(ui::View source, ui::ContextualAction::Completion done) const {
    if (handler_) {
        handler_(self(), source, done);
    } else {
        done(false);
    }
}

} // namespace desktop
