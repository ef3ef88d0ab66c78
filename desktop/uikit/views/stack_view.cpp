// Stack views: natural sizes, sharing of the length, placing.
#include "desktop/uikit/views/stack_view.hpp"

#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {
namespace {

/// What a view wants to be when it may be as wide as `width` (0: any width).
CGSize wanted(ui::View view, double width) {
    const CGSize own = view.intrinsicContentSize();
    const CGSize frame = view.frame().size;
    CGSize size{own.width == noIntrinsicMetric ? frame.width : own.width,
                own.height == noIntrinsicMetric ? frame.height : own.height};
    if (width > 0 && size.width > width) { // it has to wrap
        size = {width, std::max(size.height, view.sizeThatFits({width, 0}).height)};
    }
    return size;
}

} // namespace

ui::StackView StackView::initWithArrangedSubviews(ns::ArrayOf<ui::View> views) {
    self().send<"initWithFrame:", ui::View>(CGRect());
    for (const objc::Object view : views) {
        addArrangedSubview(view.assume<ui::View>());
    }
    return self();
}

void StackView::addArrangedSubview(ui::View view) { insertArrangedSubview(view, arranged_.size()); }

void StackView::insertArrangedSubview(ui::View view, unsigned long index) {
    if (!view) {
        return;
    }
    const objc::Strong<ui::View> kept = view;
    std::erase(arranged_, kept);
    if (view.superview() != self()) {
        self().addSubview(view);
    }
    arranged_.insert(
        arranged_.begin() + static_cast<std::ptrdiff_t>(std::min(index, arranged_.size())), kept);
    changed();
}

void StackView::removeArrangedSubview(ui::View view) {
    std::erase_if(arranged_, [view](const auto& arranged) { return arranged == view; });
    changed();
}

ns::Array StackView::arrangedSubviews() const {
    const auto array = ns::MutableArray::make();
    for (const auto& view : arranged_) {
        array.add(view);
    }
    return array;
}

StackView::Extent StackView::extent(CGSize size) const {
    return isColumn() ? Extent{size.height, size.width} : Extent{size.width, size.height};
}

CGSize StackView::size(Extent extent) const {
    return isColumn() ? CGSize{extent.breadth, extent.length}
                      : CGSize{extent.length, extent.breadth};
}

CGRect StackView::content() const {
    const CGRect bounds = self().bounds();
    return {{bounds.origin.x + margins_.left, bounds.origin.y + margins_.top},
            {std::max(0.0, bounds.size.width - margins_.left - margins_.right),
             std::max(0.0, bounds.size.height - margins_.top - margins_.bottom)}};
}

std::vector<ui::View> StackView::shown() const {
    std::vector<ui::View> views;
    for (const auto& view : arranged_) {
        if (!view.isHidden()) {
            views.push_back(view);
        }
    }
    return views;
}

/// The views' sizes in a column of that breadth (in a row, each may take what it wants).
std::vector<StackView::Extent> StackView::natural(const std::vector<ui::View>& views,
                                                  double breadth) const {
    std::vector<Extent> extents;
    for (const ui::View view : views) {
        extents.push_back(extent(wanted(view, isColumn() ? breadth : 0)));
    }
    return extents;
}

/// Fits the lengths into `length`; the result is the space between two views.
double StackView::share(std::vector<Extent>& extents, double length) const {
    if (extents.empty()) {
        return spacing_;
    }
    const auto gaps = static_cast<double>(extents.size() - 1);
    double natural = 0;
    for (const Extent& extent : extents) {
        natural += extent.length;
    }
    const double extra = length - natural - gaps * spacing_;
    switch (distribution_) {
    case ui::StackDistribution::fillEqually:
        for (Extent& extent : extents) {
            extent.length =
                std::max(0.0, (length - gaps * spacing_) / static_cast<double>(extents.size()));
        }
        break;
    case ui::StackDistribution::fillProportionally:
        for (Extent& extent : extents) {
            extent.length += natural > 0 ? extra * extent.length / natural : 0;
        }
        break;
    case ui::StackDistribution::equalSpacing:
    case ui::StackDistribution::equalCentering:
        return gaps > 0 ? std::max(spacing_, spacing_ + extra / gaps) : spacing_;
    case ui::StackDistribution::fill:
        // The last view takes what is left, or gives what is missing.
        extents.back().length = std::max(0.0, extents.back().length + extra);
    }
    return spacing_;
}

/// Where a view begins across the axis.
double StackView::across(double breadth, double room) const {
    switch (alignment_) {
    case ui::StackAlignment::center:
        return (room - breadth) / 2;
    case ui::StackAlignment::trailing:
        return room - breadth;
    default:
        return 0;
    }
}

void StackView::layoutSubviews() {
    const CGRect area = content();
    const Extent room = extent(area.size);
    const auto views = shown();
    auto extents = natural(views, room.breadth);
    const double space = share(extents, room.length);
    double along = 0;
    for (std::size_t i = 0; i < views.size(); ++i) {
        if (alignment_ == ui::StackAlignment::fill) {
            extents[i].breadth = room.breadth;
        }
        const CGSize offset = size({along, across(extents[i].breadth, room.breadth)});
        views[i].setFrame(
            {{area.origin.x + offset.width, area.origin.y + offset.height}, size(extents[i])});
        along += extents[i].length + space;
    }
}

CGSize StackView::sizeThatFits(CGSize room) const {
    const double sides = margins_.left + margins_.right;
    const auto extents = natural(shown(), room.width > sides ? room.width - sides : 0);
    Extent total{extents.empty() ? 0 : spacing_ * static_cast<double>(extents.size() - 1), 0};
    for (const Extent& extent : extents) {
        total.length += extent.length;
        total.breadth = std::max(total.breadth, extent.breadth);
    }
    const CGSize inner = size(total);
    return {inner.width + sides, inner.height + margins_.top + margins_.bottom};
}

} // namespace desktop
