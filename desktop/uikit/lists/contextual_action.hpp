// UIContextualAction: something that an application offers on a swiped row.
#pragma once

#include "bindings/uikit/contextual_action.hpp"
#include "bindings/uikit/image.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class ContextualAction : public PlatformClass<ContextualAction, ui::ContextualAction> {
public:
    static std::vector<objc::MethodRow> methods();

    [[nodiscard]] ns::String title() const { return title_; }
    /// The one that was set, or else the style's.
    [[nodiscard]] ui::Color backgroundColor() const;
    /// Lets the application act; `done` is called, once, when it has.
    void perform(ui::View source, ui::ContextualAction::Completion done) const;

private:
    static ui::ContextualAction with(Class cls, ui::ContextualActionStyle style, ns::String title,
                                     ui::ContextualAction::Handler handler);
    void setTitle(ns::String title) { title_ = title; }
    void setBackgroundColor(ui::Color color) { color_ = color; }
    [[nodiscard]] ui::ContextualAction::Handler handler() const { return handler_; }

    ui::ContextualActionStyle style_ = ui::ContextualActionStyle::normal;
    objc::Copied<ns::String> title_;
    objc::Strong<ui::Color> color_;
    objc::Strong<ui::Image> image_;
    objc::Copied<ui::ContextualAction::Handler> handler_;
};

} // namespace desktop
