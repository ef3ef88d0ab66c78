// Passing questions on to the text view.
#include "desktop/uikit/text/layout_manager.hpp"

#include "desktop/uikit/text/text_view.hpp"

namespace desktop {

void TextContainer::changed() {
    if (view_) {
        TextView::of(view_).containerChanged();
    }
}

CGSize TextContainer::size() const {
    const auto inset = view_.send<"textContainerInset", UIEdgeInsets>();
    constexpr double endless = 1e7; // as the platform's, downwards
    return {view_.bounds().size.width - inset.left - inset.right, endless};
}

CGRect LayoutManager::boundingRect(ns::Range glyphs, ui::TextContainer container) const {
    if (!view_ || !container) {
        return {};
    }
    CGRect rect = TextView::of(view_).boundingRect(glyphs);
    const auto inset = view_.send<"textContainerInset", UIEdgeInsets>();
    rect.origin.x -= inset.left;
    rect.origin.y -= inset.top;
    return rect;
}

ns::Range LayoutManager::glyphRange(ns::Range characters, ns::Range* actual) const {
    if (actual != nullptr) {
        *actual = characters;
    }
    return characters;
}

CGRect LayoutManager::usedRect(ui::TextContainer container) const {
    const auto inset = view_.send<"textContainerInset", UIEdgeInsets>();
    const CGSize content = view_.contentSize();
    return {{},
            {container.send<"size", CGSize>().width, content.height - inset.top - inset.bottom}};
}

} // namespace desktop
