// NSLayoutConstraint: a linear relation between two attributes.
#pragma once

#include "desktop/uikit/constraints/layout_item.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "desktop/class.hpp"

#include <vector>

namespace desktop {

/// What a constraint says: first = multiplier × second + constant, or ≤, or ≥. Without a second
/// item the constant stands alone.
struct ConstraintTerms {
    objc::Object first;
    LayoutAttribute firstAttribute = LayoutAttribute::none;
    Relation relation = Relation::equal;
    objc::Object second;
    LayoutAttribute secondAttribute = LayoutAttribute::none;
    double multiplier = 1;
    double constant = 0;
};

/// Inactive, it keeps its items alive; active, it is kept itself by the nearest view around both.
/// Main thread.
class LayoutConstraint : public PlatformClass<LayoutConstraint, ui::LayoutConstraint> {
public:
    static std::vector<objc::MethodRow> methods();

    /// An inactive constraint.
    static ui::LayoutConstraint with(const ConstraintTerms& terms);

    [[nodiscard]] const ConstraintTerms& terms() const { return terms_; }
    [[nodiscard]] float priority() const { return priority_; }
    /// Whether that item is one of the two.
    [[nodiscard]] bool concerns(objc::Object item) const {
        return terms_.first == item || terms_.second == item;
    }
    /// The view that keeps it lets it go; its items may be dying.
    void letGo(bool itemsLive);
    /// Said once, until it holds again.
    void noteBroken(bool broken);

private:
    static ui::LayoutConstraint make(Class, objc::Object first, LayoutAttribute firstAttribute,
                                     Relation relation, objc::Object second,
                                     LayoutAttribute secondAttribute, double multiplier,
                                     double constant);
    static void activateAll(Class, ns::ArrayOf<ui::LayoutConstraint> constraints);
    static void deactivateAll(Class, ns::ArrayOf<ui::LayoutConstraint> constraints);
    [[nodiscard]] ns::String description() const;
    [[nodiscard]] bool isActive() const { return static_cast<bool>(holder_); }
    void setActive(bool active);
    void setConstant(double constant);
    [[nodiscard]] double constant() const { return terms_.constant; }
    void setPriority(float priority);
    [[nodiscard]] double multiplier() const { return terms_.multiplier; }
    [[nodiscard]] objc::Object firstItem() const { return terms_.first; }
    [[nodiscard]] objc::Object secondItem() const { return terms_.second; }
    [[nodiscard]] LayoutAttribute firstAttribute() const { return terms_.firstAttribute; }
    [[nodiscard]] LayoutAttribute secondAttribute() const { return terms_.secondAttribute; }
    [[nodiscard]] Relation relation() const { return terms_.relation; }

    ConstraintTerms terms_;
    objc::Strong<objc::Object> keptFirst_; // while inactive: a view that keeps it is its item
    objc::Strong<objc::Object> keptSecond_;
    float priority_ = layout_priority::required;
    objc::Copied<ns::String> identifier_;
    ui::View holder_;
    bool broken_ = false;
};

} // namespace desktop
