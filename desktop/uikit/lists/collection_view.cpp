// Collection views: counting items, and making cells for those that are seen.
#include "desktop/uikit/lists/collection_view.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/collection_view_layout_attributes.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/lists/collection_view_cell.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> CollectionView::methods() {
    using Self = CollectionView;
    return {
        objc::method<"initWithFrame:collectionViewLayout:", &Self::initWithLayout>(),
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::property<"dataSource", &Self::dataSource, &Self::setDataSource>(),
        objc::property<"collectionViewLayout", &Self::layout, &Self::setLayout>(),
        objc::method<"setCollectionViewLayout:animated:", &Self::setLayoutAnimated>(),
        objc::property<"backgroundView", &Self::backgroundView, &Self::setBackgroundView>(),
        objc::method<"numberOfSections", &Self::numberOfSections>(),
        objc::method<"numberOfItemsInSection:", &Self::numberOfItems>(),
        objc::method<"reloadData", &Self::reloadData>(),
        objc::method<"reloadItemsAtIndexPaths:", &Self::reloadItems>(),
        objc::method<"insertItemsAtIndexPaths:", &Self::insertItems>(),
        objc::method<"deleteItemsAtIndexPaths:", &Self::deleteItems>(),
        objc::method<"reloadSections:", &Self::reloadSections>(),
        objc::method<"performBatchUpdates:completion:", &Self::performBatchUpdates>(),
        objc::method<"registerClass:forCellWithReuseIdentifier:", &Self::registerCellClass>(),
        objc::method<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", &Self::dequeue>(),
        objc::method<"layoutIsInvalid", &Self::layoutIsInvalid>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::method<"cellForItemAtIndexPath:", &Self::cellAt>(),
        objc::method<"indexPathForCell:", &Self::pathForCell>(),
        objc::method<"indexPathForItemAtPoint:", &Self::pathAt>(),
        objc::method<"visibleCells", &Self::visibleCells>(),
        objc::method<"indexPathsForVisibleItems", &Self::visiblePaths>(),
        objc::method<"layoutAttributesForItemAtIndexPath:", &Self::attributesAt>(),
        objc::method<"scrollToItemAtIndexPath:atScrollPosition:animated:", &Self::scrollTo>(),
        objc::method<"indexPathsForSelectedItems", &Self::selectedPaths>(),
        objc::method<"selectItemAtIndexPath:animated:scrollPosition:", &Self::selectItem>(),
        objc::method<"deselectItemAtIndexPath:animated:", &Self::deselectItem>(),
        objc::property<"allowsSelection", &Self::allowsSelection_,
                       &Self::selectionAllowedChanged>(),
        objc::property<"allowsMultipleSelection", &Self::allowsMultipleSelection_,
                       &Self::selectionAllowedChanged>(),
        objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
        objc::method<"touchesEnded:withEvent:", &Self::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Self::touchesCancelled>(),
    };
}

ui::CollectionView CollectionView::initWithLayout(CGRect frame, ui::CollectionViewLayout layout) {
    super<"initWithFrame:", ui::View>(frame);
    self().setBackgroundColor(ui::Color::systemBackground());
    setLayout(layout);
    return self();
}

ui::CollectionView CollectionView::initWithFrame(CGRect frame) {
    return self().send<"initWithFrame:collectionViewLayout:", ui::CollectionView>(
        frame, ui::CollectionViewFlowLayout::make());
}

CollectionView::~CollectionView() {
    if (layout_) {
        CollectionViewLayout::of(layout_).setCollectionView(nullptr);
    }
}

void CollectionView::setDataSource(objc::Object source) {
    dataSource_ = source;
    self().reloadData();
}

void CollectionView::setLayout(ui::CollectionViewLayout layout) {
    if (layout_) {
        CollectionViewLayout::of(layout_).setCollectionView(nullptr);
    }
    layout_ = layout;
    if (layout) {
        CollectionViewLayout::of(layout).setCollectionView(self());
    }
    layoutIsInvalid();
}

void CollectionView::setBackgroundView(ui::View view) {
    backgroundView_.removeFromSuperview();
    backgroundView_ = view;
    self().insertSubview(view, 0);
    self().setNeedsLayout();
}

const std::vector<long>& CollectionView::counts() {
    if (!counts_) {
        std::vector<long> counts;
        const auto sections = &objc::selector<"numberOfSectionsInCollectionView:">;
        const auto source = dataSource_.strong();
        const long count = source.respondsToSelector(sections())
                               ? objc::sendTo<long>(source.raw(), sections(), self())
                               : (source ? 1 : 0);
        for (long section = 0; section < count; ++section) {
            counts.push_back(
                std::max(0L, dataSource().send<"collectionView:numberOfItemsInSection:", long>(
                                 self(), section)));
        }
        counts_ = std::move(counts);
    }
    return *counts_;
}

long CollectionView::numberOfItems(long section) {
    return section >= 0 && section < numberOfSections()
               ? counts()[static_cast<std::size_t>(section)]
               : 0;
}

bool CollectionView::exists(ItemIndex index) {
    return index.item >= 0 && index.item < numberOfItems(index.section);
}

void CollectionView::reloadData() {
    selection_.clear();
    pressed_.clear();
    dataChanged();
}

/// What the data source says is asked anew; what is selected stays so where it still exists.
void CollectionView::dataChanged() {
    putAllAway();
    counts_.reset();
    layoutIsInvalid();
    const auto stays = [this](ItemIndex index) { return exists(index); };
    selection_.keepOnly(stays);
    pressed_.keepOnly(stays);
}

void CollectionView::reloadItems(ns::ArrayOf<ns::IndexPath> paths) {
    for (const ItemIndex index : indexesOf(paths)) {
        selection_.remove(index);
        putAway(index);
    }
    layoutIsInvalid();
}

void CollectionView::insertItems(ns::ArrayOf<ns::IndexPath> paths) {
    selection_.itemsWereInserted(indexesOf(paths));
    pressed_.itemsWereInserted(indexesOf(paths));
    dataChanged();
}

void CollectionView::deleteItems(ns::ArrayOf<ns::IndexPath> paths) {
    selection_.itemsWereDeleted(indexesOf(paths));
    pressed_.itemsWereDeleted(indexesOf(paths));
    dataChanged();
}

void CollectionView::performBatchUpdates(Updates updates, Completion completion) {
    if (updates) {
        updates();
    }
    dataChanged();
    if (!completion) {
        return;
    }
    // The block may still be on its maker's stack.
    Clock::shared().at(Clock::shared().now(),
                       [block = objc::Strong<Completion>(objc::Copied<Completion>(completion))] {
                           const objc::Pool pool;
                           block(true);
                       });
}

void CollectionView::registerCellClass(Class cls, ns::String identifier) {
    cells_.registerClass(cls, identifier);
}

ui::CollectionViewCell CollectionView::dequeue(ns::String identifier, ns::IndexPath path) {
    auto cell = cells_.takeUnused(identifier);
    if (!cell) {
        const Class cls = cells_.classFor(identifier);
        if (cls == nullptr) {
            ns::Exception::with(u"NSInternalInconsistencyException"_ns,
                                u"no class is registered for that cell identifier"_ns)
                .raise();
        }
        cell = objc::Strong<ui::CollectionViewCell>::adopt(
            objc::send<"alloc", objc::Object>(objc::object(cls))
                .send<"initWithFrame:", ui::CollectionViewCell>(CGRect()));
        CollectionReusableView::of(cell).setReuseIdentifier(identifier);
    }
    if (const auto attributes = attributesAt(path); attributes) {
        cell.setFrame(attributes.frame()); // the data source may place things by it
    }
    return cell.autoreleased();
}

void CollectionView::layoutIsInvalid() {
    layoutIsCurrent_ = false;
    self().setNeedsLayout();
}

void CollectionView::prepare() {
    if (!std::exchange(layoutIsCurrent_, true)) {
        const objc::Pool pool;
        layout_.send<"prepareLayout">();
        self().setContentSize(layout_.send<"collectionViewContentSize", CGSize>());
    }
}

void CollectionView::layoutSubviews() {
    super<"layoutSubviews">();
    if (backgroundView_) {
        backgroundView_.setFrame(self().bounds());
    }
    if (const CGSize size = self().bounds().size; size != std::exchange(latestSize_, size)) {
        layoutIsCurrent_ = false;
    }
    prepare();
    showVisibleCells();
}

void CollectionView::showVisibleCells() {
    const objc::Pool pool;
    std::map<ItemIndex, ui::CollectionViewLayoutAttributes> wanted;
    for (const objc::Object one :
         layout_.send<"layoutAttributesForElementsInRect:", ns::Array>(self().bounds())) {
        const auto attributes = one.assume<ui::CollectionViewLayoutAttributes>();
        wanted.emplace(ItemIndex::of(attributes.indexPath()), attributes);
    }
    const auto formerly = cells_.shown(); // a copy: it is changed
    for (const auto& [index, cell] : formerly) {
        if (!wanted.contains(index)) {
            putAway(index);
        }
    }
    for (const auto& [index, attributes] : wanted) {
        const auto shown = cells_.at(index);
        const auto cell = shown ? shown : cellFromSource(index);
        if (!cell) {
            continue;
        }
        cells_.show(index, cell);
        cell.setFrame(attributes.frame());
        cell.setAlpha(attributes.alpha());
        cell.setHidden(attributes.isHidden());
    }
}

ui::CollectionViewCell CollectionView::cellFromSource(ItemIndex index) {
    const ns::IndexPath path = index.path();
    const auto cell =
        dataSource().send<"collectionView:cellForItemAtIndexPath:", ui::CollectionViewCell>(self(),
                                                                                            path);
    if (cell) {
        cell.send<"setSelected:">(objc::Boolean(selection_.contains(index)));
        cell.send<"setHighlighted:">(objc::Boolean(pressed_.contains(index)));
        self().insertSubview(cell,
                             static_cast<long>(cells_.shown().size()) + (backgroundView_ ? 1 : 0));
        tell<"collectionView:willDisplayCell:forItemAtIndexPath:">(cell.raw(), path);
    }
    return cell;
}

void CollectionView::putAway(ItemIndex index) {
    if (const auto cell = cells_.putAway(index); cell) {
        tell<"collectionView:didEndDisplayingCell:forItemAtIndexPath:">(cell.raw(), index.path());
    }
}

void CollectionView::putAllAway() {
    const auto shown = cells_.shown(); // a copy: it is changed
    for (const auto& [index, cell] : shown) {
        putAway(index);
    }
}

ui::CollectionViewCell CollectionView::cellAt(ns::IndexPath path) const {
    return path ? cells_.at(ItemIndex::of(path)) : ui::CollectionViewCell();
}

ns::IndexPath CollectionView::pathForCell(ui::CollectionViewCell cell) const {
    const auto index = cells_.itemOf(cell, self());
    return index ? index->path() : ns::IndexPath();
}

ns::IndexPath CollectionView::pathAt(CGPoint point) {
    prepare();
    constexpr double least = 1e-3; // a rectangle that meets what is at the point
    for (const objc::Object one : layout_.send<"layoutAttributesForElementsInRect:", ns::Array>(
             CGRect{point, {least, least}})) {
        const auto attributes = one.assume<ui::CollectionViewLayoutAttributes>();
        if (contains(attributes.frame(), point)) {
            return attributes.indexPath();
        }
    }
    return nullptr;
}

ui::CollectionViewLayoutAttributes CollectionView::attributesAt(ns::IndexPath path) {
    prepare();
    return layout_.send<"layoutAttributesForItemAtIndexPath:", ui::CollectionViewLayoutAttributes>(
        path);
}

} // namespace desktop
