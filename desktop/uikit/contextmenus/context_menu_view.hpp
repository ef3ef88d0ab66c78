// A context menu as it is seen: a list of actions over the dimmed screen.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/menu.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/touch.hpp"
#include "bindings/uikit/view_controller.hpp"

#include "desktop/class.hpp"

#include <array>
#include <optional>
#include <vector>

namespace desktop {

struct ContextMenuViewKind
    : objc::Kind<ContextMenuViewKind, "_UIContextMenuContainerView", ui::View> {
    using Kind::Kind;
};

/// Covers its window; a touch beside the list takes it away. One is shown at a time.
class ContextMenuView : public PlatformClass<ContextMenuView, ContextMenuViewKind> {
public:
    static constexpr auto methods() {
        using Self = ContextMenuView;
        return std::array{
            objc::method<"layoutSubviews", &Self::layoutSubviews>(),
            objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
            objc::method<"touchesMoved:withEvent:", &Self::touchesBegan>(),
            objc::method<"touchesEnded:withEvent:", &Self::touchesEnded>(),
            objc::method<"touchesCancelled:withEvent:", &Self::touchesCancelled>(),
        };
    }

    /// Beside the view, with the preview (nil: none) above the list.
    static void show(ui::Menu menu, ui::ViewController preview, ui::View beside);
    /// The menu that is shown, or nil.
    [[nodiscard]] static ui::Menu shown();
    /// Takes the menu that is shown away.
    static void hide();
    /// The same, and performs the action.
    static void choose(ui::MenuElement element);

private:
    struct Row {
        objc::Strong<ui::MenuElement> element;
        objc::Strong<ui::View> view;
    };

    void build(ui::Menu menu, ui::ViewController preview);
    void addRounded(ui::View part) const;
    [[nodiscard]] double addTitle() const;
    [[nodiscard]] ui::View rowFor(ui::MenuElement element, double top) const;
    [[nodiscard]] std::optional<std::size_t> rowAt(ns::SetOf<ui::Touch> touches) const;
    void highlight(std::optional<std::size_t> row) const;
    void layoutSubviews();
    void placePreview(CGPoint list, double top) const;
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch>, ui::Event) { highlight(std::nullopt); }

    objc::Strong<ui::Menu> menu_;
    objc::Strong<ui::ViewController> preview_;
    objc::Strong<ui::ScrollView> list_;
    CGRect beside_;
    std::vector<Row> rows_;
};

} // namespace desktop
