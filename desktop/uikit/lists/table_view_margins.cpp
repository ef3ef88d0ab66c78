// What stands above and below the rows of a section.
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/uikit/label.hpp"

#include "desktop/coregraphics/affine.hpp"

#include <algorithm>

namespace desktop {
namespace {

// Points, as on the phone.
constexpr double margin = 16;
constexpr double groupedSize = 13;
constexpr double footerGap = 8; // above and below its text

ui::Label groupedLabel(ns::String text) {
    const auto label = ui::Label::withFrame({});
    label.setText(text);
    label.setFont(ui::Font::system(groupedSize));
    label.setTextColor(ui::Color::secondaryLabel());
    label.setNumberOfLines(0);
    return label;
}

/// A view that holds the label, and resizes it with itself.
ui::View holding(ui::Label label, CGRect place, CGSize size) {
    const auto view = ui::View::withFrame({{}, size});
    label.setFrame(place);
    label.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                              ui::ViewAutoresizing::flexibleHeight);
    view.addSubview(label);
    return view;
}

} // namespace

/// Where the texts of headers and footers stand, from left to right.
CGRect TableView::marginRoom() const {
    const UIEdgeInsets safe = self().safeAreaInsets();
    const double left = safe.left + margin;
    return {{left, 0}, {self().bounds().size.width - left - safe.right - margin, 0}};
}

double TableView::headerHeight(long section) const {
    const objc::Object asked = delegate();
    if (answers<"tableView:heightForHeaderInSection:">(asked)) {
        return std::max(0.0,
                        asked.send<"tableView:heightForHeaderInSection:", double>(self(), section));
    }
    const bool hasTitle =
        answers<"tableView:titleForHeaderInSection:">(dataSource_) &&
        dataSource().send<"tableView:titleForHeaderInSection:", ns::String>(self(), section);
    return hasTitle ? sectionHeaderHeight_ : 0;
}

ns::String TableView::footerTitle(long section) const {
    return answers<"tableView:titleForFooterInSection:">(dataSource_)
               ? dataSource().send<"tableView:titleForFooterInSection:", ns::String>(self(),
                                                                                     section)
               : ns::String();
}

double TableView::footerHeight(long section) const {
    const ns::String title = footerTitle(section);
    if (!title) {
        return 0;
    }
    return groupedLabel(title).sizeThatFits({marginRoom().size.width, 0}).height + 2 * footerGap;
}

/// A view of the delegate's, or the title on the platform's grey.
ui::View TableView::makeHeader(long section) const {
    if (const objc::Object asked = delegate();
        answers<"tableView:viewForHeaderInSection:">(asked)) {
        return asked.send<"tableView:viewForHeaderInSection:", ui::View>(self(), section);
    }
    if (!answers<"tableView:titleForHeaderInSection:">(dataSource_)) {
        return nullptr;
    }
    constexpr double plainSize = 17;
    const auto label = groupedLabel(
        dataSource().send<"tableView:titleForHeaderInSection:", ns::String>(self(), section));
    const bool isPlain = style_ == 0;
    if (isPlain) {
        label.setFont(ui::Font::system(plainSize, ui::Font::semibold));
        label.setTextColor(ui::Color::label());
    }
    const ui::View view = holding(label, marginRoom(), {self().bounds().size.width, 0});
    view.setBackgroundColor(isPlain ? ui::Color::named("secondarySystemBackgroundColor")
                                    : ui::Color::clear());
    return view;
}

ui::View TableView::makeFooter(long section) const {
    const CGSize size{self().bounds().size.width, footerHeight(section)};
    CGRect place = marginRoom();
    place.origin.y = footerGap;
    place.size.height = size.height - 2 * footerGap;
    return holding(groupedLabel(footerTitle(section)), place, size);
}

void TableView::showMargin(std::pair<long, Margin> place, CGRect frame) {
    if (frame.size.height <= 0 || !intersects(frame, self().bounds())) {
        margins_[place].removeFromSuperview();
        margins_.erase(place);
        return;
    }
    if (!margins_.contains(place)) {
        const auto [section, kind] = place;
        margins_[place] = kind == Margin::header ? makeHeader(section) : makeFooter(section);
        self().addSubview(margins_[place]);
    }
    margins_[place].setFrame(frame);
}

void TableView::showMargins() {
    const double width = self().bounds().size.width;
    for (long index = 0; index < static_cast<long>(sections_.size()); ++index) {
        const auto [top, header, end, footer] = sections_[static_cast<std::size_t>(index)];
        showMargin({index, Margin::header}, {{0, top}, {width, header}});
        showMargin({index, Margin::footer}, {{0, end - footer}, {width, footer}});
    }
}

} // namespace desktop
