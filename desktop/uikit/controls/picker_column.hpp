// One wheel of a picker view.
#pragma once

#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

#include "desktop/class.hpp"

#include <functional>
#include <map>
#include <vector>

namespace desktop {

struct PickerColumnKind : objc::Kind<PickerColumnKind, "UIPickerColumnView", ui::ScrollView> {
    using Kind::Kind;
};

/// Scrolls like any content, comes to rest on a row, and shows its rows bent around a wheel. Only
/// the rows that are seen have views. Main thread.
class PickerColumn : public PlatformClass<PickerColumn, PickerColumnKind> {
public:
    /// Makes the view of a row, using the former one of another row or nil.
    using RowMaker = std::function<ui::View(long row, ui::View former)>;

    static std::vector<objc::MethodRow> methods();

    /// Shows that many rows; `chosen` is called when a touch has brought a row to the middle.
    void show(long rows, double rowHeight, RowMaker maker, std::function<void(long row)> chosen);
    /// Rows beyond the ends are brought to the nearest.
    void turnTo(long row, bool animated);
    [[nodiscard]] long row() const;
    [[nodiscard]] long rows() const { return rows_; }
    /// Nil for rows that are not seen.
    [[nodiscard]] ui::View viewOf(long row) const;

private:
    ui::ScrollView initWithFrame(CGRect frame);
    void layoutSubviews();
    void aim(ui::ScrollView, CGPoint velocity, CGPoint* target);
    void endDrag(ui::ScrollView, bool decelerates);
    void come(ui::ScrollView);
    void handleTap(ui::TapGestureRecognizer tap);
    [[nodiscard]] double offset() const { return self().contentOffset().y; }
    [[nodiscard]] double radius() const;
    void place(long row, const objc::Strong<ui::View>& view) const;

    long rows_ = 0;
    double rowHeight_ = 1;
    RowMaker maker_;
    std::function<void(long row)> chosen_;
    bool touched_ = false; // the present movement is a finger's doing
    std::map<long, objc::Strong<ui::View>> shown_;
};

} // namespace desktop
