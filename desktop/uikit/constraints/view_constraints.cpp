// Keeping constraints where the platform keeps them, and letting them go in time.
#include "desktop/uikit/constraints/view_constraints.hpp"

#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_guide.hpp"
#include "desktop/uikit/constraints/layout_anchor.hpp"
#include "desktop/uikit/constraints/layout_engine.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace desktop {
namespace {

std::size_t activeCount = 0;

std::size_t axisIndex(long axis) { return axis == 1 ? 1 : 0; }

float priority(float value) {
    return std::isnan(value) ? layout_priority::required
                             : std::clamp(value, 0.0F, layout_priority::required);
}

} // namespace

std::vector<objc::MethodRow> ViewConstraints::methods() {
    using Self = ViewConstraints;
    std::vector<objc::MethodRow> rows{
        objc::property<"translatesAutoresizingMaskIntoConstraints", &Self::translatesMask,
                       &Self::setTranslatesMask>(),
        objc::method<"constraints", &Self::constraints>(),
        objc::method<"addConstraint:", &Self::activate>(),
        objc::method<"addConstraints:", &Self::addAll>(),
        objc::method<"removeConstraint:", &Self::remove>(),
        objc::method<"removeConstraints:", &Self::removeAll>(),
        objc::method<"layoutGuides", &Self::layoutGuides>(),
        objc::method<"addLayoutGuide:", &Self::addLayoutGuide>(),
        objc::method<"removeLayoutGuide:", &Self::removeLayoutGuide>(),
        objc::method<"safeAreaLayoutGuide", &Self::guide<GuideRole::safeArea>>(),
        objc::method<"layoutMarginsGuide", &Self::guide<GuideRole::margins>>(),
        objc::method<"readableContentGuide", &Self::guide<GuideRole::margins>>(),
        objc::property<"layoutMargins", &Self::margins, &Self::setMargins>(),
        objc::method<"contentHuggingPriorityForAxis:", &Self::huggingFor>(),
        objc::method<"setContentHuggingPriority:forAxis:", &Self::setHugging>(),
        objc::method<"contentCompressionResistancePriorityForAxis:", &Self::compressionFor>(),
        objc::method<"setContentCompressionResistancePriority:forAxis:", &Self::setCompression>(),
        objc::method<"invalidateIntrinsicContentSize", &Self::changed>(),
        objc::method<"setNeedsUpdateConstraints", &Self::changed>(),
        objc::method<"updateConstraints", &Self::updateConstraints>(),
        objc::method<"systemLayoutSizeFittingSize:", &Self::fittingSize>(),
    };
    std::ranges::copy(anchorMethods(), std::back_inserter(rows));
    return rows;
}

std::vector<objc::MethodRow> ViewConstraints::scrollViewMethods() {
    return {
        objc::method<"contentLayoutGuide", &ViewConstraints::guide<GuideRole::content>>(),
        objc::method<"frameLayoutGuide", &ViewConstraints::guide<GuideRole::frame>>(),
    };
}

ViewConstraints& ViewConstraints::of(objc::Object view) { return View::of(view).constraints(); }

ViewConstraints::ViewConstraints(ui::View view) : view_(view) {
    if (view.as<ui::Label>() || view.as<ui::ImageView>()) {
        hugging_ = {layout_priority::labelHugging, layout_priority::labelHugging};
    }
}

ViewConstraints::~ViewConstraints() {
    activeCount -= active_.size();
    for (const auto& constraint : active_) {
        LayoutConstraint::of(constraint).letGo(false);
    }
    for (const auto& guide : guides_) {
        LayoutGuide::of(guide).setOwner(nullptr);
    }
    for (const auto& [role, guide] : ownGuides_) {
        LayoutGuide::of(guide).setOwner(nullptr);
    }
}

bool ViewConstraints::areThereAny() { return activeCount > 0; }

ui::View ViewConstraints::commonAncestor(ui::View one, ui::View other) {
    for (ui::View view = one; view && other; view = view.superview()) {
        if (other.isDescendantOf(view)) {
            return view;
        }
    }
    return nullptr;
}

void ViewConstraints::dropAcross(ui::View leaving) {
    if (!areThereAny()) {
        return;
    }
    const auto leaves = [leaving](objc::Object item) {
        const ui::View view = item ? viewOf(item) : ui::View();
        return view && view.isDescendantOf(leaving);
    };
    for (ui::View around = leaving.superview(); around; around = around.superview()) {
        ViewConstraints& keeper = of(around);
        const auto all = keeper.active_; // a copy: it is changed
        for (const auto& constraint : all) {
            const ConstraintTerms& terms = LayoutConstraint::of(constraint).terms();
            if (leaves(terms.first) || leaves(terms.second)) {
                keeper.remove(constraint);
            }
        }
    }
}

void ViewConstraints::add(ui::LayoutConstraint constraint) {
    active_.emplace_back(constraint);
    ++activeCount;
    changed();
}

void ViewConstraints::remove(ui::LayoutConstraint constraint) {
    const objc::Strong<ui::LayoutConstraint> kept = constraint;
    if (std::erase(active_, kept) > 0) {
        --activeCount;
        LayoutConstraint::of(kept).letGo(true);
        changed();
    }
}

void ViewConstraints::activate(ui::LayoutConstraint constraint) { constraint.activate(); }

void ViewConstraints::addAll(ns::ArrayOf<ui::LayoutConstraint> constraints) {
    ui::LayoutConstraint::sendClass<"activateConstraints:">(constraints);
}

void ViewConstraints::removeAll(ns::ArrayOf<ui::LayoutConstraint> constraints) {
    ui::LayoutConstraint::sendClass<"deactivateConstraints:">(constraints);
}

ns::Array ViewConstraints::constraints() const {
    const auto list = ns::MutableArray::make();
    for (const auto& constraint : active_) {
        list.add(constraint);
    }
    return list;
}

void ViewConstraints::setTranslatesMask(bool translates) {
    translatesMask_ = translates;
    changed();
}

template <GuideRole Role>
ui::LayoutGuide ViewConstraints::guide() {
    auto& guide = ownGuides_[Role];
    if (!guide) {
        guide = LayoutGuide::with(view_, Role);
    }
    return guide;
}

ns::Array ViewConstraints::layoutGuides() const {
    const auto list = ns::MutableArray::make();
    for (const auto& guide : guides_) {
        list.add(guide);
    }
    return list;
}

void ViewConstraints::addLayoutGuide(ui::LayoutGuide guide) {
    if (guide && LayoutGuide::of(guide).owner() != view_) {
        const objc::Strong<ui::LayoutGuide> kept = guide;
        LayoutGuide::of(guide).owner().send<"removeLayoutGuide:">(guide);
        LayoutGuide::of(guide).setOwner(view_);
        guides_.push_back(kept);
    }
}

void ViewConstraints::removeLayoutGuide(ui::LayoutGuide guide) {
    const objc::Strong<ui::LayoutGuide> kept = guide;
    if (std::erase(guides_, kept) == 0) {
        return;
    }
    for (ui::View around = view_; around; around = around.superview()) {
        ViewConstraints& keeper = of(around);
        const auto all = keeper.active_; // a copy: it is changed
        for (const auto& constraint : all) {
            if (LayoutConstraint::of(constraint).concerns(kept)) {
                keeper.remove(constraint);
            }
        }
    }
    LayoutGuide::of(kept).setOwner(nullptr);
}

float ViewConstraints::huggingFor(long axis) const { return hugging_[axisIndex(axis)]; }

void ViewConstraints::setHugging(float value, long axis) {
    hugging_[axisIndex(axis)] = priority(value);
    changed();
}

float ViewConstraints::compressionFor(long axis) const { return compression_[axisIndex(axis)]; }

void ViewConstraints::setCompression(float value, long axis) {
    compression_[axisIndex(axis)] = priority(value);
    changed();
}

void ViewConstraints::setMargins(UIEdgeInsets margins) {
    margins_ = margins;
    changed();
}

CGSize ViewConstraints::fittingSize(CGSize target) const {
    return layout_engine::fittingSize(view_, target);
}

} // namespace desktop
