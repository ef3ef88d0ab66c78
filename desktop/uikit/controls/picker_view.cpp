// Picker views: asking for rows, and placing the wheels side by side.
#include "desktop/uikit/controls/picker_view.hpp"

#include "bindings/foundation/attributed_string.hpp"
#include "bindings/uikit/label.hpp"
#include "desktop/coregraphics/affine.hpp"

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

// Points, as on the phone.
constexpr double standardRowHeight = 32;
constexpr double bandMargin = 9;
constexpr double bandRadius = 8;
constexpr double titleSize = 21;
constexpr double columnGap = 5;

} // namespace

std::vector<objc::MethodRow> PickerView::methods() {
    using Self = PickerView;
    return {
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::property<"dataSource", &Self::dataSource, &Self::setDataSource>(),
        objc::property<"delegate", &Self::delegate, &Self::setDelegate>(),
        objc::property<"showsSelectionIndicator", &Self::showsSelectionIndicator_>(),
        objc::method<"numberOfComponents", &Self::numberOfComponents>(),
        objc::method<"numberOfRowsInComponent:", &Self::numberOfRows>(),
        objc::method<"reloadAllComponents", &Self::reloadAll>(),
        objc::method<"reloadComponent:", &Self::reload>(),
        objc::method<"selectRow:inComponent:animated:", &Self::select>(),
        objc::method<"selectedRowInComponent:", &Self::selectedRow>(),
        objc::method<"viewForRow:forComponent:", &Self::viewForRow>(),
        objc::method<"rowSizeForComponent:", &Self::rowSize>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::method<"sizeThatFits:", &Self::sizeThatFits>(),
        objc::method<"intrinsicContentSize", &Self::intrinsicContentSize>(),
    };
}

ui::View PickerView::initWithFrame(CGRect frame) {
    frame.size = {frame.size.width > 0 ? frame.size.width : standardSize.width,
                  frame.size.height > 0 ? frame.size.height : standardSize.height};
    super<"initWithFrame:", ui::View>(frame);
    band_ = ui::View::withFrame({});
    band_.setBackgroundColor(ui::Color::named("tertiarySystemFillColor"));
    band_.layer().setCornerRadius(bandRadius);
    band_.setUserInteractionEnabled(false);
    self().addSubview(band_);
    self().setClipsToBounds(true);
    return self();
}

PickerView::~PickerView() {
    for (const auto& column : columns_) {
        PickerColumn::of(column).show(0, standardRowHeight, nullptr, nullptr);
    }
}

void PickerView::setDataSource(objc::Object source) {
    dataSource_ = source;
    reloadAll();
}

void PickerView::setDelegate(objc::Object delegate) {
    delegate_ = delegate;
    reloadAll();
}

void PickerView::reloadAll() {
    loaded_ = false;
    self().setNeedsLayout();
}

void PickerView::load() {
    if (std::exchange(loaded_, true)) {
        return;
    }
    const long count =
        std::max(0L, dataSource().send<"numberOfComponentsInPickerView:", long>(self()));
    while (columns_.size() > static_cast<std::size_t>(count)) {
        columns_.back().removeFromSuperview();
        columns_.pop_back();
    }
    while (columns_.size() < static_cast<std::size_t>(count)) {
        columns_.emplace_back(PickerColumnKind::make<"initWithFrame:">(CGRect()));
        self().addSubview(columns_.back());
    }
    arrange();
    for (long component = 0; component < count; ++component) {
        reload(component);
    }
}

void PickerView::reload(long component) {
    // Asked first: whoever answers may change the columns.
    const long rows =
        dataSource().send<"pickerView:numberOfRowsInComponent:", long>(self(), component);
    const double height = rowHeight(component);
    if (PickerColumn* wheel = column(component); wheel != nullptr) {
        wheel->show(
            rows, height,
            [this, component](long row, ui::View former) {
                return makeRow(row, component, former);
            },
            [this, component](long row) { chosen(row, component); });
    }
}

PickerColumn* PickerView::column(long component) {
    load();
    return component >= 0 && component < static_cast<long>(columns_.size())
               ? &PickerColumn::of(columns_[static_cast<std::size_t>(component)])
               : nullptr;
}

long PickerView::numberOfComponents() {
    load();
    return static_cast<long>(columns_.size());
}

long PickerView::numberOfRows(long component) {
    const PickerColumn* wheel = column(component);
    return wheel != nullptr ? wheel->rows() : 0;
}

void PickerView::select(long row, long component, bool animated) {
    if (PickerColumn* wheel = column(component); wheel != nullptr) {
        wheel->turnTo(row, animated);
    }
}

long PickerView::selectedRow(long component) {
    const PickerColumn* wheel = column(component);
    return wheel != nullptr && wheel->rows() > 0 ? wheel->row() : -1;
}

ui::View PickerView::viewForRow(long row, long component) {
    const PickerColumn* wheel = column(component);
    return wheel != nullptr ? wheel->viewOf(row) : ui::View();
}

CGSize PickerView::rowSize(long component) const {
    return {width(component), rowHeight(component)};
}

double PickerView::width(long component) const {
    if (answers<"pickerView:widthForComponent:">()) {
        return delegate().send<"pickerView:widthForComponent:", double>(self(), component);
    }
    const auto count = static_cast<double>(std::max<std::size_t>(1, columns_.size()));
    return std::max(0.0, (self().bounds().size.width - 2 * bandMargin - (count - 1) * columnGap) /
                             count);
}

double PickerView::rowHeight(long component) const {
    return answers<"pickerView:rowHeightForComponent:">()
               ? delegate().send<"pickerView:rowHeightForComponent:", double>(self(), component)
               : standardRowHeight;
}

ns::String PickerView::title(long row, long component) const {
    if (answers<"pickerView:attributedTitleForRow:forComponent:">()) {
        const auto attributed =
            delegate().send<"pickerView:attributedTitleForRow:forComponent:", ns::AttributedString>(
                self(), row, component);
        if (attributed) {
            return attributed.string();
        }
    }
    return answers<"pickerView:titleForRow:forComponent:">()
               ? delegate().send<"pickerView:titleForRow:forComponent:", ns::String>(self(), row,
                                                                                     component)
               : ns::String();
}

ui::View PickerView::makeRow(long row, long component, ui::View former) const {
    if (answers<"pickerView:viewForRow:forComponent:reusingView:">()) {
        return delegate().send<"pickerView:viewForRow:forComponent:reusingView:", ui::View>(
            self(), row, component, former);
    }
    const auto label = former ? former.as<ui::Label>() : ui::Label::withFrame({});
    label.setFont(ui::Font::system(titleSize));
    label.setTextAlignment(ui::TextAlignment::center);
    label.setText(title(row, component));
    return label;
}

void PickerView::chosen(long row, long component) const {
    if (answers<"pickerView:didSelectRow:inComponent:">()) {
        delegate().send<"pickerView:didSelectRow:inComponent:">(self(), row, component);
    }
}

void PickerView::arrange() {
    const CGSize room = self().bounds().size;
    double total = columns_.empty() ? 0 : -columnGap;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        total += width(static_cast<long>(index)) + columnGap;
    }
    double left = (room.width - total) / 2;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const double breadth = width(static_cast<long>(index));
        columns_[index].setFrame({{left, 0}, {breadth, room.height}});
        left += breadth + columnGap;
    }
    const double height = columns_.empty() ? standardRowHeight : rowHeight(0);
    band_.setFrame({{bandMargin, (room.height - height) / 2},
                    {std::max(0.0, room.width - 2 * bandMargin), height}});
}

void PickerView::layoutSubviews() {
    if (const CGSize size = self().bounds().size; size != std::exchange(latestSize_, size)) {
        loaded_ = false; // each row can come to the middle of the new height
    }
    load();
    arrange();
}

} // namespace desktop
