// NSLayoutAnchor and its kinds: one attribute of an item, to make constraints of.
#pragma once

#include "bindings/uikit/layout_anchor.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_dimension.hpp"
#include "bindings/uikit/layout_x_axis_anchor.hpp"
#include "bindings/uikit/layout_y_axis_anchor.hpp"

#include "desktop/uikit/constraints/layout_constraint.hpp"

#include <vector>

namespace desktop {

class LayoutAnchor : public PlatformClass<LayoutAnchor, ui::LayoutAnchor> {
public:
    static std::vector<objc::MethodRow> methods();

    template <class Kind>
    static Kind with(objc::Object item, LayoutAttribute attribute) {
        const auto anchor = Kind::make();
        of(anchor).item_ = item;
        of(anchor).attribute_ = attribute;
        return anchor;
    }
    /// A constraint of this anchor against another (or none) times a number plus another.
    [[nodiscard]] ui::LayoutConstraint against(ui::LayoutAnchor other, Relation relation,
                                               double multiplier, double constant) const;

private:
    [[nodiscard]] objc::Object item() const { return item_; }
    template <Relation Kind>
    ui::LayoutConstraint to(ui::LayoutAnchor other) const {
        return against(other, Kind, 1, 0);
    }
    template <Relation Kind>
    ui::LayoutConstraint toWithConstant(ui::LayoutAnchor other, double constant) const {
        return against(other, Kind, 1, constant);
    }

    objc::Strong<objc::Object> item_;
    LayoutAttribute attribute_ = LayoutAttribute::none;
};

class XAnchor : public PlatformClass<XAnchor, ui::LayoutXAxisAnchor> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};
class YAnchor : public PlatformClass<YAnchor, ui::LayoutYAxisAnchor> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// A width or height, which may be related to a number alone.
class Dimension : public PlatformClass<Dimension, ui::LayoutDimension> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    [[nodiscard]] const LayoutAnchor& base() const { return LayoutAnchor::of(self()); }
    template <Relation Kind>
    ui::LayoutConstraint toConstant(double constant) const {
        return base().against(nullptr, Kind, 1, constant);
    }
    template <Relation Kind>
    ui::LayoutConstraint toMultiple(ui::LayoutDimension other, double multiplier) const {
        return base().against(other, Kind, multiplier, 0);
    }
    template <Relation Kind>
    ui::LayoutConstraint toMultipleWithConstant(ui::LayoutDimension other, double multiplier,
                                                double constant) const {
        return base().against(other, Kind, multiplier, constant);
    }
};

/// The methods that answer the anchors of a view or a guide ("leadingAnchor" …).
[[nodiscard]] std::vector<objc::MethodRow> anchorMethods();

} // namespace desktop
