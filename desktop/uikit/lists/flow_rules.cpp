// Breaking items into lines, and finding them again.
#include "desktop/uikit/lists/flow_rules.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double rounding = 1e-6; // of sums of widths

double measure(double value) { return value > 0 && std::isfinite(value) ? value : 0; }

CGSize measure(CGSize size) { return {measure(size.width), measure(size.height)}; }

/// The width left for items between the section's insets.
double room(const FlowSection& section, double width) {
    return std::max(0.0, width - section.inset.left - section.inset.right);
}

std::size_t columnsOf(std::size_t items, double item, double gap, double available) {
    const double pitch = item + gap;
    const double fitting = pitch > 0 ? (available + gap + rounding) / pitch : 0;
    return pitch > 0 && fitting < static_cast<double>(items)
               ? std::max<std::size_t>(1, static_cast<std::size_t>(fitting))
               : std::max<std::size_t>(1, items);
}

bool meet(const CGRect& one, const CGRect& other) {
    return one.origin.x < other.origin.x + other.size.width &&
           one.origin.x + one.size.width > other.origin.x &&
           one.origin.y < other.origin.y + other.size.height &&
           one.origin.y + one.size.height > other.origin.y;
}

CGRect lowered(CGRect rect, double points) {
    rect.origin.y += points;
    return rect;
}

} // namespace

FlowGrid::FlowGrid(const FlowSection& section, double width)
    : count_(section.gridItems),
      item_(measure(section.gridItemSize)), origin_{section.inset.left, section.inset.top},
      bottom_(section.inset.bottom) {
    const double available = room(section, width);
    gap_ = measure(section.itemSpacing);
    columns_ = columnsOf(count_, item_.width, gap_, available);
    lines_ = (count_ + columns_ - 1) / columns_;
    pitch_ = item_.height + measure(section.lineSpacing);
    // A line that is not full has the gaps of one that is.
    const double fitting =
        item_.width > 0 ? std::floor((available + gap_) / (item_.width + gap_)) : 1;
    if (fitting > 1) {
        gap_ = (available - fitting * item_.width) / (fitting - 1);
    }
    if (columns_ == 1) {
        indent_ = std::max(0.0, available - item_.width) / 2;
    }
}

double FlowGrid::height() const {
    const auto lines = static_cast<double>(lines_);
    return origin_.y + bottom_ + (lines_ > 0 ? (lines - 1) * pitch_ + item_.height : 0);
}

CGRect FlowGrid::frame(std::size_t item) const {
    const std::size_t line = item / columns_;
    const double indent = line + 1 < lines_ ? indent_ : 0;
    return {{origin_.x + indent + static_cast<double>(item % columns_) * (item_.width + gap_),
             origin_.y + static_cast<double>(line) * pitch_},
            item_};
}

std::pair<std::size_t, std::size_t> FlowGrid::linesIn(double top, double bottom) const {
    const auto lineAt = [this](double height) {
        const double lines = pitch_ > 0 ? (height - origin_.y) / pitch_ : 0;
        return static_cast<std::size_t>(std::clamp(lines, 0.0, static_cast<double>(lines_)));
    };
    return {lineAt(top) * columns_, std::min(count_, (lineAt(bottom) + 1) * columns_)};
}

FlowLines::FlowLines(const FlowSection& section, double width) : height_(section.inset.top) {
    const double available = room(section, width);
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
        setLine(section, first, end, available);
        first = end;
    }
    height_ += section.inset.bottom;
}

void FlowLines::setLine(const FlowSection& section, std::size_t first, std::size_t end,
                        double available) {
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
    if (!isLast && gaps > 0) {
        gap = (available - used) / static_cast<double>(gaps);
    } else if (!isLast) {
        left += std::max(0.0, available - used) / 2;
    }
    for (std::size_t item = first; item < end; ++item) {
        const CGSize size = measure(section.items[item]);
        frames_.push_back({{left, height_ + (height - size.height) / 2}, size});
        left += size.width + gap;
    }
    lines_.push_back({height_, height_ + height, first, end});
    height_ += height;
}

std::pair<std::size_t, std::size_t> FlowLines::linesIn(double top, double bottom) const {
    const auto first =
        std::ranges::partition_point(lines_, [&](const Line& line) { return line.bottom <= top; });
    const auto end = std::partition_point(first, lines_.end(),
                                          [&](const Line& line) { return line.top < bottom; });
    return first == end ? std::pair<std::size_t, std::size_t>()
                        : std::pair(first->first, std::prev(end)->end);
}

double FlowPlacement::Run::height() const {
    return std::visit([](const auto& one) { return one.height(); }, section);
}

double FlowPlacement::Run::topOf(long index) const {
    return top + static_cast<double>(index - first) * height();
}

std::size_t FlowPlacement::Run::itemCount() const {
    return std::visit([](const auto& one) { return one.count(); }, section);
}

CGRect FlowPlacement::Run::frame(ItemIndex index) const {
    const auto item = static_cast<std::size_t>(index.item);
    return lowered(std::visit([&](const auto& one) { return one.frame(item); }, section),
                   topOf(index.section));
}

void FlowPlacement::Run::collect(CGRect rect, std::vector<ItemIndex>& found) const {
    const double above = height() > 0 ? (rect.origin.y - top) / height() : 0;
    const double most = static_cast<double>(end - first);
    long index = first + static_cast<long>(std::clamp(above, 0.0, most));
    for (; index < end && topOf(index) < rect.origin.y + rect.size.height; ++index) {
        collectOf(index, rect, found);
    }
}

void FlowPlacement::Run::collectOf(long index, CGRect rect, std::vector<ItemIndex>& found) const {
    const CGRect inside = lowered(rect, -topOf(index));
    const double bottom = inside.origin.y + inside.size.height;
    const auto [begin, past] =
        std::visit([&](const auto& one) { return one.linesIn(inside.origin.y, bottom); }, section);
    for (std::size_t item = begin; item < past; ++item) {
        const ItemIndex place{index, static_cast<long>(item)};
        if (meet(frame(place), rect)) {
            found.push_back(place);
        }
    }
}

void FlowPlacement::add(const FlowSection& section) {
    const long index = runs_.empty() ? 0 : runs_.back().end;
    Run run{section.gridItems > 0 ? std::variant<FlowGrid, FlowLines>(FlowGrid(section, width_))
                                  : FlowLines(section, width_),
            height_, index, index + 1};
    const auto* grid = std::get_if<FlowGrid>(&run.section);
    const auto* last = runs_.empty() ? nullptr : std::get_if<FlowGrid>(&runs_.back().section);
    if (grid != nullptr && last != nullptr && *grid == *last) {
        runs_.back().end = run.end;
    } else {
        runs_.push_back(std::move(run));
    }
    height_ = runs_.back().bottom();
}

const FlowPlacement::Run* FlowPlacement::runWith(long section) const {
    const auto run =
        std::ranges::partition_point(runs_, [&](const Run& one) { return one.end <= section; });
    return section >= 0 && run != runs_.end() ? &*run : nullptr;
}

bool FlowPlacement::contains(ItemIndex index) const {
    const Run* const run = runWith(index.section);
    return run != nullptr && index.item >= 0 &&
           static_cast<std::size_t>(index.item) < run->itemCount();
}

CGRect FlowPlacement::frame(ItemIndex index) const { return runWith(index.section)->frame(index); }

std::vector<ItemIndex> FlowPlacement::itemsIn(CGRect rect) const {
    std::vector<ItemIndex> found;
    auto run = std::ranges::partition_point(
        runs_, [&](const Run& one) { return one.bottom() <= rect.origin.y; });
    for (; run != runs_.end() && run->top < rect.origin.y + rect.size.height; ++run) {
        run->collect(rect, found);
    }
    return found;
}

} // namespace desktop
