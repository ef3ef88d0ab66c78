// Making, switching and describing constraints.
#include "desktop/uikit/constraints/layout_constraint.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/log.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"
#include "desktop/uikit/constraints/view_constraints.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> LayoutConstraint::methods() {
    using Self = LayoutConstraint;
    return {
        objc::classMethod<"constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:"
                          "constant:",
                          &Self::make>(),
        objc::classMethod<"activateConstraints:", &Self::activateAll>(),
        objc::classMethod<"deactivateConstraints:", &Self::deactivateAll>(),
        objc::method<"isActive", &Self::isActive>(),
        objc::method<"setActive:", &Self::setActive>(),
        objc::property<"constant", &Self::constant, &Self::setConstant>(),
        objc::property<"priority", &Self::priority, &Self::setPriority>(),
        objc::property<"identifier", &Self::identifier_>(),
        objc::method<"multiplier", &Self::multiplier>(),
        objc::method<"firstItem", &Self::firstItem>(),
        objc::method<"secondItem", &Self::secondItem>(),
        objc::method<"firstAttribute", &Self::firstAttribute>(),
        objc::method<"secondAttribute", &Self::secondAttribute>(),
        objc::method<"relation", &Self::relation>(),
        objc::method<"description", &Self::description>(),
    };
}

ui::LayoutConstraint LayoutConstraint::with(const ConstraintTerms& terms) {
    const bool hasSecond = terms.second && terms.secondAttribute != LayoutAttribute::none;
    if (!terms.first || terms.firstAttribute == LayoutAttribute::none ||
        !std::isfinite(terms.multiplier) || std::isnan(terms.constant)) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"a constraint needs an item, an attribute and finite numbers"_ns)
            .raise();
    }
    const auto constraint = ui::LayoutConstraint::make();
    LayoutConstraint& peer = of(constraint);
    peer.terms_ = terms;
    if (!hasSecond) {
        peer.terms_.second = nullptr;
        peer.terms_.secondAttribute = LayoutAttribute::none;
    }
    peer.keptFirst_ = peer.terms_.first;
    peer.keptSecond_ = peer.terms_.second;
    return constraint;
}

ui::LayoutConstraint LayoutConstraint::make(Class, objc::Object first,
                                            LayoutAttribute firstAttribute, Relation relation,
                                            objc::Object second, LayoutAttribute secondAttribute,
                                            double multiplier, double constant) {
    return with({first, firstAttribute, relation, second, secondAttribute, multiplier, constant});
}

void LayoutConstraint::activateAll(Class, ns::ArrayOf<ui::LayoutConstraint> constraints) {
    for (const objc::Object constraint : constraints) {
        of(constraint).setActive(true);
    }
}

void LayoutConstraint::deactivateAll(Class, ns::ArrayOf<ui::LayoutConstraint> constraints) {
    for (const objc::Object constraint : constraints.copied()) {
        of(constraint).setActive(false);
    }
}

void LayoutConstraint::setActive(bool active) {
    if (active == isActive() || !terms_.first) {
        return;
    }
    if (!active) {
        ViewConstraints::of(holder_).remove(self());
        return;
    }
    const ui::View first = viewOf(terms_.first);
    const ui::View second = terms_.second ? viewOf(terms_.second) : first;
    const ui::View holder = ViewConstraints::commonAncestor(first, second);
    if (!holder) {
        ns::Exception::with(u"NSGenericException"_ns,
                            u"the items of a constraint have no view in common"_ns)
            .raise();
    }
    holder_ = holder;
    ViewConstraints::of(holder).add(self());
    keptFirst_ = nullptr;
    keptSecond_ = nullptr;
}

void LayoutConstraint::letGo(bool itemsLive) {
    holder_ = nullptr;
    if (itemsLive) {
        keptFirst_ = terms_.first;
        keptSecond_ = terms_.second;
    } else {
        terms_.first = nullptr;
        terms_.second = nullptr;
    }
}

void LayoutConstraint::setConstant(double constant) {
    if (std::isnan(constant)) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns, u"a constant that is no number"_ns)
            .raise();
    }
    if (constant != std::exchange(terms_.constant, constant) && holder_) {
        holder_.setNeedsLayout();
    }
}

void LayoutConstraint::setPriority(float priority) {
    priority_ = std::isnan(priority) ? layout_priority::required
                                     : std::clamp(priority, 0.0F, layout_priority::required);
    if (holder_) {
        holder_.setNeedsLayout();
    }
}

void LayoutConstraint::noteBroken(bool broken) {
    if (broken && !broken_) {
        ns::log("Unable to simultaneously satisfy constraints. Will attempt to recover by breaking "
                "constraint " +
                description().utf8());
    }
    broken_ = broken;
}

ns::String LayoutConstraint::description() const {
    std::array<char, 256> text{};
    std::snprintf(
        text.data(), text.size(), "<NSLayoutConstraint:%p %s:%p.%ld %s %g * %s:%p.%ld + %g @%g>",
        static_cast<const void*>(self().raw()), object_getClassName(terms_.first.raw()),
        static_cast<const void*>(terms_.first.raw()), static_cast<long>(terms_.firstAttribute),
        terms_.relation == Relation::equal         ? "=="
        : terms_.relation == Relation::lessOrEqual ? "<="
                                                   : ">=",
        terms_.multiplier, object_getClassName(terms_.second.raw()),
        static_cast<const void*>(terms_.second.raw()), static_cast<long>(terms_.secondAttribute),
        terms_.constant, static_cast<double>(priority_));
    return ns::String::fromUtf8(text.data());
}

} // namespace desktop
