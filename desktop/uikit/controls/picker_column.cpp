// Bending rows around the wheel, and letting it rest on one.
#include "desktop/uikit/controls/picker_column.hpp"

#include "desktop/uikit/controls/picker_rules.hpp"

#include "bindings/uikit/gesture_recognizer.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {

std::vector<objc::MethodRow> PickerColumn::methods() {
    using Self = PickerColumn;
    return {
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::method<"scrollViewWillEndDragging:withVelocity:targetContentOffset:", &Self::aim>(),
        objc::method<"scrollViewDidEndDragging:willDecelerate:", &Self::endDrag>(),
        objc::method<"scrollViewDidEndDecelerating:", &Self::come>(),
        objc::method<"scrollViewDidEndScrollingAnimation:", &Self::come>(),
        objc::method<"handleTap:", &Self::handleTap>(),
    };
}

ui::ScrollView PickerColumn::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::ScrollView>(frame);
    self().setContentInsetAdjustmentBehavior(ui::ContentInsetAdjustmentBehavior::never);
    self().send<"setShowsVerticalScrollIndicator:">(objc::Boolean(false));
    self().setAlwaysBounceVertical(true);
    self().send<"setDelegate:">(self());
    self().addGestureRecognizer(ui::GestureRecognizer::with<ui::TapGestureRecognizer>(
        self(), objc::selector<"handleTap:">()));
    return self();
}

void PickerColumn::show(long rows, double rowHeight, RowMaker maker,
                        std::function<void(long row)> chosen) {
    const long former = row();
    for (const auto& [index, view] : std::exchange(shown_, {})) {
        view.removeFromSuperview();
    }
    rows_ = std::max(0L, rows);
    rowHeight_ = rowHeight > 1 ? rowHeight : 1;
    maker_ = std::move(maker);
    chosen_ = std::move(chosen);
    // So much content that each row can come to the middle.
    const CGSize size = self().bounds().size;
    self().setContentSize(
        {size.width, size.height + rowHeight_ * static_cast<double>(std::max(0L, rows_ - 1))});
    turnTo(former, false);
}

void PickerColumn::turnTo(long row, bool animated) {
    const long last = std::max(0L, rows_ - 1);
    const double offset = rowHeight_ * static_cast<double>(std::clamp(row, 0L, last));
    touched_ = false;
    self().setContentOffset({0, offset}, animated);
    self().setNeedsLayout();
}

long PickerColumn::row() const { return wheelRow(offset(), rowHeight_, rows_); }

ui::View PickerColumn::viewOf(long row) const {
    const auto found = shown_.find(row);
    return found != shown_.end() ? static_cast<ui::View>(found->second) : ui::View();
}

double PickerColumn::radius() const { return std::max(1.0, self().bounds().size.height / 2); }

void PickerColumn::layoutSubviews() {
    super<"layoutSubviews">();
    const auto maker = maker_; // what is called may set another one
    if (!maker) {
        return;
    }
    const double middle = offset() / rowHeight_;
    const double reach = wheelDistance(radius(), radius()) / rowHeight_;
    const double last = static_cast<double>(rows_) - 1;
    const auto first = static_cast<long>(std::clamp(std::ceil(middle - reach), 0.0, last + 1));
    const auto end = static_cast<long>(std::clamp(std::floor(middle + reach), -1.0, last)) + 1;
    std::vector<objc::Strong<ui::View>> unused;
    std::erase_if(shown_, [&](const auto& entry) {
        if (entry.first >= first && entry.first < end) {
            return false;
        }
        entry.second.removeFromSuperview();
        unused.push_back(entry.second);
        return true;
    });
    for (long row = first; row < end; ++row) {
        if (!shown_.contains(row)) {
            const objc::Strong<ui::View> former = unused.empty() ? nullptr : unused.back();
            unused.resize(unused.empty() ? 0 : unused.size() - 1);
            const objc::Strong<ui::View> made = maker(row, former);
            self().addSubview(made);
            shown_[row] = made;
        }
        place(row, shown_[row]);
    }
}

void PickerColumn::place(long row, const objc::Strong<ui::View>& view) const {
    const CGSize room = self().bounds().size;
    const WheelPlace seen = wheelPlace(static_cast<double>(row) * rowHeight_ - offset(), radius());
    constexpr double apart = 0.5; // what is not in the middle is pale
    const bool isMiddle = std::abs(seen.offset) < rowHeight_ / 2;
    view.setTransform({});
    view.setBounds({{}, {room.width, rowHeight_}});
    view.setCenter({room.width / 2, offset() + room.height / 2 + seen.offset});
    view.setTransform({1, 0, 0, std::max(seen.scale, 0.01), 0, 0});
    view.setAlpha(isMiddle ? 1 : apart * seen.alpha);
}

/// The wheel comes to rest on a row.
void PickerColumn::aim(ui::ScrollView, CGPoint, CGPoint* target) {
    target->y = rowHeight_ * static_cast<double>(wheelRow(target->y, rowHeight_, rows_));
    touched_ = true;
}

void PickerColumn::endDrag(ui::ScrollView scrollView, bool decelerates) {
    if (!decelerates) {
        come(scrollView);
    }
}

void PickerColumn::come(ui::ScrollView) {
    if (std::exchange(touched_, false) && chosen_ && rows_ > 0) {
        const auto chosen = chosen_; // what is called may show other rows
        chosen(row());
    }
}

/// A tap on a row brings it to the middle.
void PickerColumn::handleTap(ui::TapGestureRecognizer tap) {
    const double seen = tap.locationIn(self()).y - offset() - self().bounds().size.height / 2;
    const double wanted = offset() + wheelDistance(seen, radius());
    const long row = wheelRow(wanted, rowHeight_, rows_);
    if (row != this->row()) {
        turnTo(row, true);
        touched_ = true;
    }
}

} // namespace desktop
