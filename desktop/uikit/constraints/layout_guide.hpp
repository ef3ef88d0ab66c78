// UILayoutGuide: a rectangle of a view that constraints may refer to and that draws nothing.
#pragma once

#include "desktop/uikit/constraints/layout_item.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/uikit/layout_guide.hpp"
#include "desktop/class.hpp"

#include <vector>

namespace desktop {

/// What decides where a guide is.
enum class GuideRole {
    constrained, ///< the constraints on it
    safeArea,    ///< the part of its view that no bar covers
    margins,     ///< that part, within the view's margins
    content,     ///< a scroll view's content, whose size constraints decide
    frame,       ///< a scroll view itself
};

class LayoutGuide : public PlatformClass<LayoutGuide, ui::LayoutGuide> {
public:
    static std::vector<objc::MethodRow> methods();

    static ui::LayoutGuide with(ui::View owner, GuideRole role);

    [[nodiscard]] GuideRole role() const { return role_; }
    /// Nil once the view is gone, or has given the guide up.
    [[nodiscard]] ui::View owner() const { return owner_; }
    void setOwner(ui::View owner) { owner_ = owner; }
    /// In the owner's coordinates, as it was placed last.
    [[nodiscard]] CGRect frame() const { return frame_; }
    void setFrame(CGRect frame) { frame_ = frame; }

private:
    [[nodiscard]] CGRect layoutFrame() const;

    ui::View owner_;
    GuideRole role_ = GuideRole::constrained;
    CGRect frame_; // in the owner
    objc::Copied<ns::String> identifier_;
};

/// The view that an item of a constraint is, or belongs to; nil for a guide without one.
[[nodiscard]] ui::View viewOf(objc::Object item);

} // namespace desktop
