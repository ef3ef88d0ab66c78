// Tables: measuring rows, and making cells for those that are seen.
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> TableView::methods() {
    using Self = TableView;
    return {
        objc::method<"initWithFrame:style:", &Self::initWithStyle>(),
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::method<"style", &Self::style_>(),
        objc::property<"dataSource", &Self::dataSource, &Self::setDataSource>(),
        objc::property<"rowHeight", &Self::rowHeight_, &Self::lookChanged>(),
        objc::property<"estimatedRowHeight", &Self::estimatedRowHeight_>(),
        objc::property<"sectionHeaderHeight", &Self::sectionHeaderHeight_, &Self::lookChanged>(),
        objc::property<"separatorStyle", &Self::separatorStyle_, &Self::lookChanged>(),
        objc::property<"separatorInset", &Self::separatorInset_, &Self::lookChanged>(),
        objc::property<"separatorColor", &Self::separatorColor_, &Self::lookChanged>(),
        objc::property<"tableHeaderView", &Self::tableHeaderView, &Self::setTableHeaderView>(),
        objc::property<"tableFooterView", &Self::tableFooterView, &Self::setTableFooterView>(),
        objc::method<"numberOfSections", &Self::numberOfSections>(),
        objc::method<"numberOfRowsInSection:", &Self::numberOfRows>(),
        objc::method<"reloadData", &Self::reloadData>(),
        objc::method<"reloadRowsAtIndexPaths:withRowAnimation:", &Self::reloadRows>(),
        objc::method<"insertRowsAtIndexPaths:withRowAnimation:", &Self::insertRows>(),
        objc::method<"deleteRowsAtIndexPaths:withRowAnimation:", &Self::deleteRows>(),
        objc::method<"reloadSections:withRowAnimation:", &Self::reloadSections>(),
        objc::method<"beginUpdates", &Self::beginUpdates>(),
        objc::method<"endUpdates", &Self::endUpdates>(),
        objc::method<"registerClass:forCellReuseIdentifier:", &Self::registerCellClass>(),
        objc::method<"dequeueReusableCellWithIdentifier:", &Self::dequeue>(),
        objc::method<"dequeueReusableCellWithIdentifier:forIndexPath:", &Self::dequeueFor>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::method<"cellForRowAtIndexPath:", &Self::cellAt>(),
        objc::method<"indexPathForCell:", &Self::pathForCell>(),
        objc::method<"indexPathForRowAtPoint:", &Self::pathAt>(),
        objc::method<"rectForRowAtIndexPath:", &Self::rectForRow>(),
        objc::method<"visibleCells", &Self::visibleCells>(),
        objc::method<"indexPathsForVisibleRows", &Self::visiblePaths>(),
        objc::method<"scrollToRowAtIndexPath:atScrollPosition:animated:", &Self::scrollTo>(),
        objc::method<"indexPathForSelectedRow", &Self::selectedPath>(),
        objc::method<"indexPathsForSelectedRows", &Self::selectedPaths>(),
        objc::method<"selectRowAtIndexPath:animated:scrollPosition:", &Self::selectRow>(),
        objc::method<"deselectRowAtIndexPath:animated:", &Self::deselectRow>(),
        objc::property<"allowsSelection", &Self::allowsSelection_>(),
        objc::property<"allowsMultipleSelection", &Self::allowsMultipleSelection_>(),
        objc::method<"gestureRecognizerShouldBegin:", &Self::shouldBegin>(),
        objc::method<"handleRowSwipe:", &Self::handleSwipe>(),
        objc::method<"chooseRowAction:", &Self::chooseButton>(),
        objc::method<"isEditing", &Self::isEditing>(),
        objc::method<"setEditing:", &Self::setEditing>(),
        objc::method<"setEditing:animated:", &Self::setEditingAnimated>(),
        objc::property<"allowsMultipleSelectionDuringEditing", &Self::allowsMultipleDuringEditing_,
                       &Self::editingChanged>(),
        objc::property<"allowsSelectionDuringEditing", &Self::allowsSelectionDuringEditing_>(),
        objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
        objc::method<"touchesEnded:withEvent:", &Self::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Self::touchesCancelled>(),
    };
}

ui::View TableView::initWithStyle(CGRect frame, long style) {
    super<"initWithFrame:", ui::View>(frame);
    style_ = style;
    separatorColor_ = ui::Color::named("separatorColor");
    self().send<"setAlwaysBounceVertical:">(objc::Boolean(true));
    self().setBackgroundColor(style == 0 ? ui::Color::systemBackground()
                                         : ui::Color::named("systemGroupedBackgroundColor"));
    addSwipe();
    return self();
}

ui::View TableView::initWithFrame(CGRect frame) {
    return self().send<"initWithFrame:style:", ui::View>(frame, 0L);
}

void TableView::setDataSource(objc::Object source) {
    dataSource_ = source;
    self().send<"reloadData">();
}

void TableView::setTableHeaderView(ui::View view) {
    header_.removeFromSuperview();
    header_ = view;
    self().addSubview(view);
    rowsChanged();
}

void TableView::setTableFooterView(ui::View view) {
    footer_.removeFromSuperview();
    footer_ = view;
    self().addSubview(view);
    rowsChanged();
}

long TableView::numberOfSections() {
    if (!counts_) {
        std::vector<long> counts;
        const long sections = answers<"numberOfSectionsInTableView:">(dataSource_)
                                  ? dataSource().send<"numberOfSectionsInTableView:", long>(self())
                                  : (dataSource_ ? 1 : 0);
        for (long index = 0; index < sections; ++index) {
            counts.push_back(std::max(
                0L, dataSource().send<"tableView:numberOfRowsInSection:", long>(self(), index)));
        }
        counts_ = std::move(counts);
    }
    return static_cast<long>(counts_->size());
}

long TableView::numberOfRows(long section) {
    return section >= 0 && section < numberOfSections()
               ? (*counts_)[static_cast<std::size_t>(section)]
               : 0;
}

void TableView::reloadData() {
    selection_.clear();
    pressed_.clear();
    rowsChanged();
}

/// What the data source says is asked anew; what is selected stays so where it still exists.
void TableView::rowsChanged() {
    swipe_.reset();
    putAllAway();
    counts_.reset();
    isPrepared_ = false;
    const auto exists = [this](ItemIndex index) {
        return index.item < numberOfRows(index.section);
    };
    selection_.keepOnly(exists);
    pressed_.keepOnly(exists);
    self().setNeedsLayout();
}

void TableView::reloadRows(ns::ArrayOf<ns::IndexPath> paths, long) {
    for (const ItemIndex index : indexesOf(paths)) {
        selection_.remove(index);
    }
    rowsChanged();
}

void TableView::insertRows(ns::ArrayOf<ns::IndexPath> paths, long) {
    selection_.itemsWereInserted(indexesOf(paths));
    pressed_.itemsWereInserted(indexesOf(paths));
    heights_.rowsWereInserted(indexesOf(paths));
    rowsChangedBy(1, indexesOf(paths));
}

void TableView::deleteRows(ns::ArrayOf<ns::IndexPath> paths, long) {
    selection_.itemsWereDeleted(indexesOf(paths));
    pressed_.itemsWereDeleted(indexesOf(paths));
    heights_.rowsWereDeleted(indexesOf(paths));
    rowsChangedBy(-1, indexesOf(paths));
}

/// Between the beginning of updates and their end only their sum would have to be right.
void TableView::rowsChangedBy(long change, const std::set<ItemIndex>& rows) {
    std::optional<std::vector<long>> expected = counts_;
    rowsChanged();
    if (!expected || updates_ > 0) {
        return;
    }
    for (const ItemIndex row : rows) {
        if (const auto section = static_cast<std::size_t>(row.section);
            section < expected->size()) {
            (*expected)[section] += change;
        }
    }
    const auto sections = static_cast<std::size_t>(numberOfSections()); // asks for the counts
    if (sections != expected->size() || counts_ != expected) {
        ns::Exception::with(u"NSInternalInconsistencyException"_ns,
                            u"the data source has not changed by the rows of the update"_ns)
            .raise();
    }
}

FlowSection TableView::section(long index) {
    const double width = self().bounds().size.width;
    FlowSection section;
    section.inset.top = headerHeight(index);
    section.inset.bottom = footerHeight(index);
    const long count = numberOfRows(index);
    for (long row = 0; row < count; ++row) {
        section.items.push_back({width, heightOf({index, row})});
    }
    return section;
}

void TableView::prepare() {
    const double width = self().bounds().size.width;
    if (width != std::exchange(latestWidth_, width)) {
        isPrepared_ = false;
        heights_.clear();
        putAllAway();
    }
    if (std::exchange(isPrepared_, true)) {
        return;
    }
    const objc::Pool pool;
    placement_ = FlowPlacement(width);
    sections_.clear();
    for (long index = 0; index < numberOfSections(); ++index) {
        const double top = heightBefore() + placement_.height();
        const FlowSection added = section(index);
        placement_.add(added);
        sections_.push_back(
            {top, added.inset.top, heightBefore() + placement_.height(), added.inset.bottom});
    }
    self().setContentSize(
        {width, heightBefore() + placement_.height() + footer_.bounds().size.height});
}

CGRect TableView::frameOf(ItemIndex index) const {
    CGRect frame = placement_.frame(index);
    frame.origin = {0, frame.origin.y + heightBefore()};
    frame.size.width = self().bounds().size.width;
    return frame;
}

void TableView::registerCellClass(Class cls, ns::String identifier) {
    cells_.registerClass(cls, identifier);
}

/// Nil when no cell waits and no class is registered: the data source makes one.
ui::TableViewCell TableView::dequeue(ns::String identifier) {
    if (const auto cell = cells_.takeUnused(identifier); cell) {
        return cell.autoreleased();
    }
    const Class cls = cells_.classFor(identifier);
    return cls == nullptr ? ui::TableViewCell()
                          : objc::send<"alloc", objc::Object>(objc::object(cls))
                                .send<"initWithStyle:reuseIdentifier:", objc::Object>(
                                    ui::TableViewCellStyle::default_, identifier)
                                .send<"autorelease", ui::TableViewCell>();
}

ui::TableViewCell TableView::dequeueFor(ns::String identifier, ns::IndexPath path) {
    const ui::TableViewCell cell = dequeue(identifier);
    if (!cell) {
        ns::Exception::with(u"NSInternalInconsistencyException"_ns,
                            u"no class is registered for that cell identifier"_ns)
            .raise();
    }
    cell.setFrame(rectForRow(path)); // the data source may place things by it
    return cell;
}

void TableView::layoutSubviews() {
    super<"layoutSubviews">();
    prepare();
    const double width = self().bounds().size.width;
    header_.setFrame({{}, {width, heightBefore()}});
    footer_.setFrame(
        {{0, heightBefore() + placement_.height()}, {width, footer_.bounds().size.height}});
    showVisibleCells();
    showMargins();
}

void TableView::putAway(ItemIndex index) {
    const auto cell = cells_.putAway(index);
    tell<"tableView:didEndDisplayingCell:forRowAtIndexPath:">(static_cast<ui::TableViewCell>(cell),
                                                              index.path());
}

void TableView::putAllAway() {
    const auto shown = cells_.shown(); // a copy: it is changed
    for (const auto& [index, cell] : shown) {
        putAway(index);
    }
    for (const auto& [place, view] : std::exchange(margins_, {})) {
        view.removeFromSuperview();
    }
}

ui::TableViewCell TableView::cellAt(ns::IndexPath path) const {
    return path ? cells_.at(ItemIndex::of(path)) : ui::TableViewCell();
}

ns::IndexPath TableView::pathForCell(ui::TableViewCell cell) const {
    const auto index = cells_.itemOf(cell, self());
    return index ? index->path() : ns::IndexPath();
}

ns::IndexPath TableView::pathAt(CGPoint point) {
    prepare();
    constexpr double least = 1e-3; // a rectangle that meets what is at the point
    const auto found = placement_.itemsIn({{point.x, point.y - heightBefore()}, {least, least}});
    return found.empty() ? ns::IndexPath() : found.front().path();
}

CGRect TableView::rectForRow(ns::IndexPath path) {
    prepare();
    return path && placement_.contains(ItemIndex::of(path)) ? frameOf(ItemIndex::of(path))
                                                            : CGRect();
}

void TableView::scrollTo(ns::IndexPath path, long position, bool animated) {
    const CGRect row = rectForRow(path);
    if (row == CGRect()) {
        return;
    }
    enum Position : long { none = 0, top = 1, middle = 2, bottom = 3 };
    if (position == none) {
        self().send<"scrollRectToVisible:animated:">(row, objc::Boolean(animated));
        return;
    }
    const auto inset = self().send<"adjustedContentInset", UIEdgeInsets>();
    const double room = self().bounds().size.height;
    const double offset = position == top ? row.origin.y - inset.top
                          : position == middle
                              ? row.origin.y + (row.size.height - room) / 2
                              : row.origin.y + row.size.height - room + inset.bottom;
    const auto range = ScrollRange::of(self().contentSize().height, room, inset.top, inset.bottom);
    self().send<"setContentOffset:animated:">(
        CGPoint{self().contentOffset().x, range.nearest(offset)}, objc::Boolean(animated));
}

} // namespace desktop
