// The caret and the selection of a view that edits text, drawn above its text.
#pragma once

#include "bindings/uikit/view.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/geometry.hpp"
#include "desktop/runtime/clock.hpp"

#include <optional>
#include <vector>

namespace desktop {

struct TextSelectionViewKind : objc::Kind<TextSelectionViewKind, "UITextSelectionView", ui::View> {
    using Kind::Kind;
};

/// Covers what is visible of its superview, the view that edits. The caret is a view of its own, so
/// that its blinking makes nothing else stale.
class TextSelectionView : public PlatformClass<TextSelectionView, TextSelectionViewKind> {
public:
    static std::vector<objc::MethodRow> methods();

    ~TextSelectionView();

    /// What is selected, a rectangle for each line from top to bottom, and the caret while there is
    /// one, in the superview's coordinates. A caret that was moved is seen at once.
    void show(std::vector<CGRect> lines, std::optional<CGRect> caret);

    /// Seconds that the caret is seen, and then is not.
    static constexpr double blinking = 0.5;
    /// Points across the heads of the pins, above and below what is selected.
    static constexpr double pinHead = 10;

private:
    TextSelectionViewKind initWithFrame(CGRect frame);
    void drawRect(CGRect dirty);
    void blink();

    std::vector<CGRect> lines_;
    objc::Strong<ui::View> caret_;
    std::optional<CGRect> caretPlace_;
    Clock::Ticket next_ = 0;
};

} // namespace desktop
