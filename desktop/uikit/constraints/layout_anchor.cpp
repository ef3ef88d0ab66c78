// Making constraints of anchors, and anchors of items.
#include "desktop/uikit/constraints/layout_anchor.hpp"

#include "bindings/uikit/layout_anchor.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_dimension.hpp"
#include "bindings/uikit/layout_x_axis_anchor.hpp"
#include "bindings/uikit/layout_y_axis_anchor.hpp"

namespace desktop {
namespace {

constexpr auto equal = Relation::equal;
constexpr auto less = Relation::lessOrEqual;
constexpr auto greater = Relation::greaterOrEqual;

/// A view or a guide, as far as it has anchors.
struct Anchored {
    static constexpr objc::Boundary border = objc::Boundary::propagates;
    static Anchored of(objc::Object item) { return {item}; }

    template <class Kind, LayoutAttribute Attribute>
    [[nodiscard]] Kind anchor() const {
        return LayoutAnchor::with<Kind>(item, Attribute);
    }

    objc::Object item;
};

template <objc::Literal Name, class Kind, LayoutAttribute Attribute>
objc::MethodRow anchor() {
    return objc::method<Name, &Anchored::anchor<Kind, Attribute>>();
}

} // namespace

std::vector<objc::MethodRow> anchorMethods() {
    using enum LayoutAttribute;
    return {
        anchor<"leadingAnchor", ui::LayoutXAxisAnchor, leading>(),
        anchor<"trailingAnchor", ui::LayoutXAxisAnchor, trailing>(),
        anchor<"leftAnchor", ui::LayoutXAxisAnchor, left>(),
        anchor<"rightAnchor", ui::LayoutXAxisAnchor, right>(),
        anchor<"centerXAnchor", ui::LayoutXAxisAnchor, centerX>(),
        anchor<"topAnchor", ui::LayoutYAxisAnchor, top>(),
        anchor<"bottomAnchor", ui::LayoutYAxisAnchor, bottom>(),
        anchor<"centerYAnchor", ui::LayoutYAxisAnchor, centerY>(),
        anchor<"firstBaselineAnchor", ui::LayoutYAxisAnchor, firstBaseline>(),
        anchor<"lastBaselineAnchor", ui::LayoutYAxisAnchor, lastBaseline>(),
        anchor<"widthAnchor", ui::LayoutDimension, width>(),
        anchor<"heightAnchor", ui::LayoutDimension, height>(),
    };
}

std::vector<objc::MethodRow> LayoutAnchor::methods() {
    using Self = LayoutAnchor;
    return {
        objc::method<"item", &Self::item>(),
        objc::method<"constraintEqualToAnchor:", &Self::to<equal>>(),
        objc::method<"constraintLessThanOrEqualToAnchor:", &Self::to<less>>(),
        objc::method<"constraintGreaterThanOrEqualToAnchor:", &Self::to<greater>>(),
        objc::method<"constraintEqualToAnchor:constant:", &Self::toWithConstant<equal>>(),
        objc::method<"constraintLessThanOrEqualToAnchor:constant:", &Self::toWithConstant<less>>(),
        objc::method<"constraintGreaterThanOrEqualToAnchor:constant:",
                     &Self::toWithConstant<greater>>(),
    };
}

std::vector<objc::MethodRow> Dimension::methods() {
    using Self = Dimension;
    return {
        objc::method<"constraintEqualToConstant:", &Self::toConstant<equal>>(),
        objc::method<"constraintLessThanOrEqualToConstant:", &Self::toConstant<less>>(),
        objc::method<"constraintGreaterThanOrEqualToConstant:", &Self::toConstant<greater>>(),
        objc::method<"constraintEqualToAnchor:multiplier:", &Self::toMultiple<equal>>(),
        objc::method<"constraintLessThanOrEqualToAnchor:multiplier:", &Self::toMultiple<less>>(),
        objc::method<"constraintGreaterThanOrEqualToAnchor:multiplier:",
                     &Self::toMultiple<greater>>(),
        objc::method<"constraintEqualToAnchor:multiplier:constant:",
                     &Self::toMultipleWithConstant<equal>>(),
        objc::method<"constraintLessThanOrEqualToAnchor:multiplier:constant:",
                     &Self::toMultipleWithConstant<less>>(),
        objc::method<"constraintGreaterThanOrEqualToAnchor:multiplier:constant:",
                     &Self::toMultipleWithConstant<greater>>(),
    };
}

ui::LayoutConstraint LayoutAnchor::against(ui::LayoutAnchor other, Relation relation,
                                           double multiplier, double constant) const {
    ConstraintTerms terms;
    terms.first = item_;
    terms.firstAttribute = attribute_;
    terms.relation = relation;
    terms.multiplier = multiplier;
    terms.constant = constant;
    if (other) {
        terms.second = of(other).item_;
        terms.secondAttribute = of(other).attribute_;
    }
    return LayoutConstraint::with(terms);
}

} // namespace desktop
