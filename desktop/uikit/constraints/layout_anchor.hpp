// NSLayoutAnchor and its kinds: one attribute of an item, to make constraints of.
#pragma once

#include "desktop/uikit/constraints/layout_constraint.hpp"

#include <vector>

namespace desktop {

struct AnchorKind : objc::Kind<AnchorKind, "NSLayoutAnchor"> {
    using Kind::Kind;
};
struct XAnchorKind : objc::Kind<XAnchorKind, "NSLayoutXAxisAnchor", AnchorKind> {
    using Kind::Kind;
};
struct YAnchorKind : objc::Kind<YAnchorKind, "NSLayoutYAxisAnchor", AnchorKind> {
    using Kind::Kind;
};
struct DimensionKind : objc::Kind<DimensionKind, "NSLayoutDimension", AnchorKind> {
    using Kind::Kind;
};

class LayoutAnchor : public PlatformClass<LayoutAnchor, AnchorKind> {
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
    [[nodiscard]] ConstraintKind against(AnchorKind other, Relation relation, double multiplier,
                                         double constant) const;

private:
    [[nodiscard]] objc::Object item() const { return item_; }
    template <Relation Kind>
    ConstraintKind to(AnchorKind other) const {
        return against(other, Kind, 1, 0);
    }
    template <Relation Kind>
    ConstraintKind toWithConstant(AnchorKind other, double constant) const {
        return against(other, Kind, 1, constant);
    }

    objc::Strong<objc::Object> item_;
    LayoutAttribute attribute_ = LayoutAttribute::none;
};

class XAnchor : public PlatformClass<XAnchor, XAnchorKind> {
public:
    static std::array<objc::MethodRow, 0> methods() { return {}; }
};
class YAnchor : public PlatformClass<YAnchor, YAnchorKind> {
public:
    static std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// A width or height, which may be related to a number alone.
class Dimension : public PlatformClass<Dimension, DimensionKind> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    [[nodiscard]] const LayoutAnchor& base() const { return LayoutAnchor::of(self()); }
    template <Relation Kind>
    ConstraintKind toConstant(double constant) const {
        return base().against(nullptr, Kind, 1, constant);
    }
    template <Relation Kind>
    ConstraintKind toMultiple(DimensionKind other, double multiplier) const {
        return base().against(other, Kind, multiplier, 0);
    }
    template <Relation Kind>
    ConstraintKind toMultipleWithConstant(DimensionKind other, double multiplier,
                                          double constant) const {
        return base().against(other, Kind, multiplier, constant);
    }
};

/// The methods that answer the anchors of a view or a guide ("leadingAnchor" …).
[[nodiscard]] std::vector<objc::MethodRow> anchorMethods();

} // namespace desktop
