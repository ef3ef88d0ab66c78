// Breaking items into lines, and finding them again.
#include "desktop/uikit/lists/flow_rules.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

double measure(double value) { return value > 0 && std::isfinite(value) ? value : 0; }

/// The width left for items between the section's insets.
double room(const FlowSection& section, double width) {
    return std::max(0.0, width - section.inset.left - section.inset.right);
}

/// The gap between items of a grid's full line.
double gridGap(const FlowSection& section, double available) {
    const double item = measure(section.items.front().width);
    const double gap = measure(section.itemSpacing);
    const double columns = item > 0 ? std::floor((available + gap) / (item + gap)) : 1;
    return columns > 1 ? (available - columns * item) / (columns - 1) : gap;
}

} // namespace

FlowPlacement::FlowPlacement(std::span<const FlowSection> sections, double width) {
    for (const FlowSection& section : sections) {
        place(section, width);
    }
}

void FlowPlacement::place(const FlowSection& section, double width) {
    const std::size_t start = frames_.size();
    starts_.push_back(start);
    height_ += section.inset.top;
    const double available = room(section, width);
    constexpr double rounding = 1e-6; // of sums of widths
    std::size_t first = 0;
    while (first < section.items.size()) {
        std::size_t end = first;
        double used = 0;
        do {
            used += measure(section.items[end].width) + measure(section.itemSpacing);
            ++end;
        } while (end < section.items.size() &&
                 used + measure(section.items[end].width) <= available + rounding);
        if (first > 0) {
            height_ += measure(section.lineSpacing);
        }
        setLine(section, first, end, height_, width);
        lines_.back().first += start;
        lines_.back().end += start;
        height_ = lines_.back().bottom;
        first = end;
    }
    height_ += section.inset.bottom;
}

void FlowPlacement::setLine(const FlowSection& section, std::size_t first, std::size_t end,
                            double top, double width) {
    const double available = room(section, width);
    double used = 0;
    double height = 0;
    for (std::size_t item = first; item < end; ++item) {
        used += measure(section.items[item].width);
        height = std::max(height, measure(section.items[item].height));
    }
    const bool isLast = end == section.items.size();
    const std::size_t gaps = end - first - 1;
    double gap = measure(section.itemSpacing);
    double left = section.inset.left;
    if (section.isGrid && gaps > 0) {
        gap = gridGap(section, available);
    } else if (!isLast && gaps > 0) {
        gap = (available - used) / static_cast<double>(gaps);
    } else if (!isLast) {
        left += std::max(0.0, available - used) / 2;
    }
    for (std::size_t item = first; item < end; ++item) {
        const CGSize size{measure(section.items[item].width), measure(section.items[item].height)};
        frames_.push_back({{left, top + (height - size.height) / 2}, size});
        left += size.width + gap;
    }
    lines_.push_back({top, top + height, first, end, static_cast<long>(starts_.size()) - 1});
}

bool FlowPlacement::contains(ItemIndex index) const {
    if (index.section < 0 || index.item < 0 || index.section >= static_cast<long>(starts_.size())) {
        return false;
    }
    const auto section = static_cast<std::size_t>(index.section);
    const std::size_t end = section + 1 < starts_.size() ? starts_[section + 1] : frames_.size();
    return starts_[section] + static_cast<std::size_t>(index.item) < end;
}

CGRect FlowPlacement::frame(ItemIndex index) const {
    return frames_[starts_[static_cast<std::size_t>(index.section)] +
                   static_cast<std::size_t>(index.item)];
}

std::vector<ItemIndex> FlowPlacement::itemsIn(CGRect rect) const {
    const double right = rect.origin.x + rect.size.width;
    const double bottom = rect.origin.y + rect.size.height;
    std::vector<ItemIndex> found;
    auto line = std::ranges::partition_point(
        lines_, [&](const Line& one) { return one.bottom <= rect.origin.y; });
    for (; line != lines_.end() && line->top < bottom; ++line) {
        const std::size_t start = starts_[static_cast<std::size_t>(line->section)];
        for (std::size_t place = line->first; place < line->end; ++place) {
            const CGRect& frame = frames_[place];
            if (frame.origin.x < right && frame.origin.x + frame.size.width > rect.origin.x &&
                frame.origin.y < bottom && frame.origin.y + frame.size.height > rect.origin.y) {
                found.push_back({line->section, static_cast<long>(place - start)});
            }
        }
    }
    return found;
}

} // namespace desktop
